// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>
#include <QMainWindow>

// What the toolkit alone takes to open a window: that of `start` is measured against it.
int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QMainWindow window;
    window.resize(1000, 680);
    window.show();
    return QApplication::exec();
}

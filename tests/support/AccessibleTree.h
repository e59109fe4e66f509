// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QStringList>

#include <optional>

namespace quorvin::test {

/// The window program on a display and a bus of its own, as a screen reader gets to know it.
class AccessibleTree {
public:
    /// Starts it with these words and settings of its own in that folder.
    AccessibleTree(const QStringList &words, const QString &folder);
    ~AccessibleTree();

    /// What kept display, bus or program from starting; "" for nothing.
    QString problem() const { return _problem; }
    /// All objects that are shown, a line each, the deeper the further in:
    ///     role "name" (description) [states]
    QStringList lines() const;
    /// Reads until a line has the text; the lines of the last reading. Where none ever has it, what the
    /// program said to its standard error follows.
    QStringList linesWith(const QString &text);

private:
    struct Object {
        QString service;
        QString path;
    };

    bool start(QProcess &process, const QString &program, const QStringList &words);
    QString firstLineOf(QProcess &process);
    QString busOfReaders() const;
    static std::vector<Object> objectsIn(const QVariant &list);
    QVariant ask(const Object &object, const QString &interface, const QString &method) const;
    QString property(const Object &object, const QString &name) const;
    std::optional<Object> application() const;
    void append(const Object &object, int depth, QStringList &lines) const;

    QProcessEnvironment _environment;
    QProcess _display;
    QProcess _bus;
    QProcess _launcher;
    QProcess _program;
    QString _problem;
};

} // namespace quorvin::test

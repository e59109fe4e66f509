// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
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
    /// None where one of them went away meanwhile.
    QStringList lines();
    /// Reads until a line has the text and nothing changes; the lines of the last reading. Where none ever
    /// has it, what the program said to its standard error follows.
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
    QVariant ask(const Object &object, const QString &interface, const QString &method);
    QString property(const Object &object, const QString &name);
    QVariant answerTo(const QDBusMessage &call);
    std::optional<Object> application();
    void append(const Object &object, int depth, QStringList &lines);

    QProcessEnvironment _environment;
    QProcess _display;
    QProcess _bus;
    QProcess _launcher;
    QProcess _program;
    QString _problem;
    bool _isTorn = false; ///< the tree changed while it was read
};

} // namespace quorvin::test

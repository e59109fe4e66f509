// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <ostream>

/// So that a failed comparison shows the text.
inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}

namespace quorvin::test {

/// A folder that goes with the test.
class TestFolder {
public:
    QString path() const { return _folder.path(); }
    /// The path of a name in the folder.
    QString operator/(const QString &name) const { return _folder.path() + u'/' + name; }
    /// Makes a file, with the folders above it, and gives its path.
    QString write(const QString &name, const QByteArray &content = "x") const;
    /// The names of all files in the folder itself, hidden ones too, sorted.
    QStringList names() const;
    void setAttribute(const QString &path, const char *name, const QByteArray &value) const;

private:
    QTemporaryDir _folder;
};

QByteArray contentOf(const QString &path);
/// The project's own samples.
QString samplesFolder();
QString sample(const QString &name);
/// The programs that tests run.
QString commandLineProgram();
QString faultyReaderProgram();
QString faultyPanelProgram();

} // namespace quorvin::test

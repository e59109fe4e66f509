// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/TestFolder.h"

#include "platform/NativePath.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/xattr.h>

#include <filesystem>

namespace quorvin::test {

QString TestFolder::write(const QString &name, const QByteArray &content) const
{
    const QString path = *this / name;
    std::filesystem::create_directories(encodePath(withoutLastPathComponent(path)).toStdString());
    QFile file;
    const int descriptor
        = ::open(encodePath(path).constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    EXPECT_TRUE(file.open(descriptor, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle));
    file.write(content);
    return path;
}

QStringList TestFolder::names() const
{
    return QDir(path()).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
}

void TestFolder::setAttribute(const QString &path, const char *name, const QByteArray &value) const
{
    const auto size = static_cast<std::size_t>(value.size());
    EXPECT_EQ(::setxattr(encodePath(path).constData(), name, value.constData(), size, 0), 0);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString sample(const QString &name)
{
    return samplesFolder() + u'/' + name;
}

QString samplesFolder()
{
    return QStringLiteral(QUORVIN_SAMPLES);
}

QString commandLineProgram()
{
    return QStringLiteral(QUORVIN_CLI);
}

QString faultyPanelProgram()
{
    return QStringLiteral(QUORVIN_FAULTY_PANEL);
}

QString faultyReaderProgram()
{
    return QStringLiteral(QUORVIN_FAULTY_READER);
}

} // namespace quorvin::test

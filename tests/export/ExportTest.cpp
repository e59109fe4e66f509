// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/ExportFormats.h"
#include "export/QuorvinExporter.h"
#include "support/TestFolder.h"
#include "support/TestRecords.h"

#include <QBuffer>
#include <QDir>
#include <QFile>

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <algorithm>
#include <csignal>

namespace quorvin {

using namespace Qt::StringLiterals;
using test::contentOf;
using test::entryWithValue;
using test::TestFolder;

namespace {

ExportEntry entry(const QString &filename, const QString &pathPrefix)
{
    return {filename, pathPrefix, test::movieEntry().data};
}

QuorvinExporter exporter(const QString &format)
{
    QuorvinExporter made;
    made.setFormat(format);
    return made;
}

/// Takes so many bytes and no more.
class ShortDevice final : public QBuffer {
public:
    explicit ShortDevice(qint64 room) : _room(room) { open(QIODevice::WriteOnly); }

private:
    qint64 writeData(const char *bytes, qint64 length) override
    {
        if (pos() == _room)
            setErrorString(u"the room is used up"_s);
        return pos() == _room ? -1 : QBuffer::writeData(bytes, std::min(length, _room - pos()));
    }

    qint64 _room;
};

} // namespace

TEST(Export, FolderNumbersNamesThatAreTaken)
{
    const TestFolder folder;
    for (int round = 0; round < 2; ++round) {
        const auto target = QuorvinExporter().toFolder(folder.path());
        EXPECT_TRUE(target->add(entry(u"/x/a.mov"_s, u"a.mov"_s)));
        EXPECT_TRUE(target->add(entry(u"/y/a.mp4"_s, u"a.mp4"_s)));
        EXPECT_TRUE(target->finish());
    }
    EXPECT_EQ(folder.names().join(u'|'), u"a (1).txt|a (2).txt|a (3).txt|a.txt"_s);
    EXPECT_TRUE(contentOf(folder / u"a (1).txt"_s).contains("\na.mp4\n-----\n"));
    const auto refused = QuorvinExporter().toFolder(u"/none"_s)->add(entry(u"/a"_s, QString()));
    EXPECT_EQ(refused ? QString() : refused.error().description, u"/none/a.txt: No such file or directory"_s);
    EXPECT_EQ(QuorvinExporter::extensionForExportFormat(u"doc"_s), QString());
}

TEST(Export, FileAppearsWhenItIsComplete)
{
    const TestFolder folder;
    const QString path = folder / u"all.json"_s;
    EXPECT_TRUE(exporter(u"json"_s).toFile(path)->finish());
    EXPECT_EQ(contentOf(path), test::exported(u"json"_s, {}));
    EXPECT_TRUE(QFile::remove(path));
    {
        const auto dropped = exporter(u"json"_s).toFile(path);
        EXPECT_TRUE(dropped->add(entry(u"/a"_s, QString())));
    }
    EXPECT_FALSE(QFile::exists(path));
    const auto target = exporter(u"json"_s).toFile(path);
    EXPECT_TRUE(target->add(test::movieEntry()));
    EXPECT_TRUE(target->finish());
    EXPECT_EQ(contentOf(path), test::exported(u"json"_s, {test::movieEntry()}));
    EXPECT_EQ(folder.names(), QStringList{u"all.json"_s});
}

TEST(Export, DeviceThatTakesTooLittleIsAnErrorInEveryFormat)
{
    for (const QString &format : exportFormats()) {
        const QByteArray whole
            = test::exported(format, {test::movieEntry(), entryWithValue(QString(200'000, u'x'))});
        for (const qint64 room : {qint64(0), qint64(1), qint64(100), qint64(65'536), qint64(150'000),
                                  qint64(whole.size() - 1), qint64(whole.size())}) {
            ShortDevice device(room);
            const auto target = exporter(format).toDevice(device);
            auto result = target->add(test::movieEntry());
            result = result.and_then([&] { return target->add(entryWithValue(QString(200'000, u'x'))); });
            result = result.and_then([&] { return target->finish(); });
            EXPECT_EQ(result.has_value(), room == whole.size()) << format.toStdString() << room;
            EXPECT_EQ(result ? QString() : result.error().description,
                      room == whole.size() ? QString() : u"the room is used up"_s);
            EXPECT_EQ(device.data(), whole.first(room)) << format.toStdString() << room;
        }
    }
}

TEST(Export, OldFileStaysWhenTheNewOneFindsNoRoom)
{
    const TestFolder folder;
    struct rlimit limit { };
    ::getrlimit(RLIMIT_FSIZE, &limit);
    const struct rlimit little {
        100'000, limit.rlim_max
    };
    const auto previous = std::signal(SIGXFSZ, SIG_IGN);
    for (const QString &format : exportFormats()) {
        const QString path = folder.write(u"all."_s + format, "old");
        ::setrlimit(RLIMIT_FSIZE, &little);
        const auto target = exporter(format).toFile(path);
        const auto result
            = target->add(entryWithValue(QString(200'000, u'x'))).and_then([&] { return target->finish(); });
        ::setrlimit(RLIMIT_FSIZE, &limit);
        EXPECT_EQ(result ? QString() : result.error().description, u"File too large"_s);
        EXPECT_EQ(contentOf(path), "old");
    }
    std::signal(SIGXFSZ, previous);
    EXPECT_EQ(folder.names().size(), exportFormats().size());
}

TEST(Export, FolderThatVanishesIsAnError)
{
    const TestFolder folder;
    QDir().mkpath(folder / u"gone"_s);
    const auto target = QuorvinExporter().toFile(folder / u"gone/all.txt"_s);
    EXPECT_TRUE(target->add(entry(u"/a"_s, QString())));
    EXPECT_TRUE(QDir(folder / u"gone"_s).removeRecursively());
    const auto result = target->finish();
    EXPECT_EQ(result ? QString() : result.error().description, u"No such file or directory"_s);
}

TEST(Export, DocumentLeavesWhileItGrows)
{
    const ExportEntry one = entryWithValue(QString(1000, u'x'));
    for (const QString &format : exportFormats()) {
        QBuffer device;
        device.open(QIODevice::WriteOnly);
        const auto writer = makeExportWriter(format, device, false);
        for (int i = 0; i < 200; ++i)
            EXPECT_TRUE(writer->write(one));
        EXPECT_GT(device.size(), 100'000) << format.toStdString();
        const qint64 before = device.size();
        EXPECT_TRUE(writer->finish());
        EXPECT_LE(device.size() - before, OutputBuffer::kPiece + 2000) << format.toStdString();
    }
}

} // namespace quorvin

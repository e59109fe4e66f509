// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/image/oEXIV2Reports.h"

#include "model/FailureKind.h"
#include "model/Log.h"
#include "platform/NativePath.h"
#include "readers/image/Exiv2Library.h"
#include "readers/image/XmpText.h"

#include <QStringList>

#include <sstream>

namespace quorvin::oEXIV2Reports {

namespace {

using namespace Qt::StringLiterals;

/// With replacement characters for what is no UTF-8.
QString lenient(const std::string &utf8)
{
    return QString::fromStdString(utf8);
}

auto unreadable()
{
    return failure(FailureKind::NotUnderstood);
}

QString errorText(const Exiv2::Error &error)
{
    return "Exiv2 exception: "_L1 + QString::fromUtf8(error.what());
}

/// One kind of metadata: a heading, then a line an item.
template <typename Items, typename Line>
void addSection(QLatin1String name, const Items &items, Line line, QStringList &lines)
{
    if (items.empty())
        return;
    if (!lines.isEmpty())
        lines.append(u"\n"_s);
    lines.append(name + "\n================"_L1);
    for (const auto &item : items)
        lines.append(line(item));
}

QString itemLine(const Exiv2::Metadatum &item)
{
    return lenient(item.key()) + " ("_L1 + lenient(item.tagLabel()) + ") : "_L1 + lenient(item.print());
}

QString report(const Exiv2::Image &image)
{
    const Exiv2::ExifData &exif = image.exifData();
    QStringList lines;
    addSection(
        "Exif"_L1, exif,
        [&](const Exiv2::Exifdatum &item) {
            return u'[' + lenient(item.ifdName()) + "] "_L1 + lenient(item.key()) + " ("_L1
                + lenient(item.tagLabel()) + "): "_L1 + lenient(item.print(&exif));
        },
        lines);
    addSection("IPTC"_L1, image.iptcData(), itemLine, lines);
    addSection(
        "XMP"_L1, image.xmpData(),
        [](const Exiv2::Xmpdatum &item) { return lenient(item.groupName()) + ": "_L1 + itemLine(item); },
        lines);
    return lines.join(u'\n');
}

/// What `make` makes of an image with its metadata read. Throws what the library throws, for a file of a type
/// that it does not know too.
template <typename Make>
Expected<QString> textOfFile(const QString &path, Make make)
{
    const auto image = exiv2::openImage(path);
    if (!image)
        throw Exiv2::Error(Exiv2::kerFileContainsUnknownImageType, encodePath(path).toStdString());
    const exiv2::XmpSession session;
    image->readMetadata();
    return make(*image);
}

/// The same, and the library's error as text.
template <typename Make>
Expected<QString> textOrErrorOfFile(const QString &path, Make make)
try {
    return textOfFile(path, make);
} catch (const Exiv2::Error &error) {
    return errorText(error);
} catch (...) {
    return unreadable();
}

} // namespace

Expected<QString> outputOnFile(const QString &path)
try {
    return textOfFile(path, report);
} catch (const Exiv2::Error &error) {
    qCInfo(lcQuorvin).noquote() << errorText(error);
    return unreadable();
} catch (const std::exception &error) {
    qCInfo(lcQuorvin, "%s", error.what());
    return unreadable();
} catch (...) {
    return unreadable();
}

Expected<QString> structureOfFile(const QString &path)
{
    return textOrErrorOfFile(path, [](Exiv2::Image &image) {
        std::ostringstream out;
        image.printStructure(out, Exiv2::kpsRecursive, 0);
        return lenient(out.str());
    });
}

Expected<QString> rawXmpOfFile(const QString &path)
{
    return textOrErrorOfFile(path, [](Exiv2::Image &image) { return lenient(image.xmpPacket()); });
}

Expected<QString> arrangedXmpOfFile(const QString &path)
{
    return rawXmpOfFile(path).map(arrangedXmp);
}

} // namespace quorvin::oEXIV2Reports

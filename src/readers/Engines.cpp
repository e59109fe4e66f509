// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/Engines.h"

#include "platform/RegularFile.h"
#include "readers/FactTable.h"
#include "readers/Location.h"
#include "readers/exiftool/ExifToolUtilities.h"
#include "readers/image/HeifReader.h"
#include "readers/image/ImageBrand.h"
#include "readers/image/oEXIV2.h"
#include "readers/mediainfo/oMediaInfo.h"

#include <QHash>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

namespace quorvin {

namespace {

using FactRow = std::array<QString, 4>; ///< a fact and the words on it

constexpr int kDecimals = 6;

QString textOfNumber(double number)
{
    QString text = QString::number(number, 'f', kDecimals);
    while (text.endsWith(u'0'))
        text.chop(1);
    return text.endsWith(u'.') ? text.chopped(1) : text;
}

/// The degrees of a place that the fact means; "" for no place.
QString degreesOf(const Fact &fact, const QString &place)
{
    const auto location = locationFromIso6709(place);
    if (!location)
        return {};
    return textOfNumber(fact.name == QLatin1String("Latitude") ? location->latitude : location->longitude);
}

QString wordOfMediaInfo(const Fact &fact, const oMediaInfo &library)
{
    for (const MediaInfoName &name : fact.mediaInfo) {
        const QString text
            = name.parameter ? library.GetFromStream(name.kind, 0, QLatin1String(name.parameter)) : QString();
        if (text.isEmpty())
            continue;
        if (fact.tolerance == kDegrees)
            return degreesOf(fact, text);
        bool isNumber = false;
        const double number = text.toDouble(&isNumber);
        return isNumber && fact.kind == FactKind::Number ? textOfNumber(number * fact.mediaInfoScale) : text;
    }
    return {};
}

QString wordOfExiv2(const char *key, const ImageMetadata &image)
{
    const auto degrees
        = [](const std::optional<double> &value) { return value ? textOfNumber(*value) : QString(); };
    const QLatin1String name(key);
    if (name == QLatin1String(kExiv2Mime))
        return image.mimeType.value_or(QString());
    if (name == QLatin1String(kExiv2Width))
        return image.imageWidth.value_or(QString());
    if (name == QLatin1String(kExiv2Height))
        return image.imageHeight.value_or(QString());
    if (name == QLatin1String(kExiv2Latitude))
        return degrees(image.gpsLatitude);
    if (name == QLatin1String(kExiv2Longitude))
        return degrees(image.gpsLongitude);
    const TagList &tags = name.startsWith(QLatin1String("Exif.")) ? image.exif : image.xmp;
    const QString text = tags.value(name).value_or(QString());
    // A text of XMP may come with its language ahead.
    return text.startsWith(QLatin1String("lang=\"")) ? text.section(u' ', 1) : text;
}

/// The first of the names that has a word.
template <typename Names, typename WordOf>
QString firstWord(const Names &names, WordOf wordOf)
{
    for (const char *name : names) {
        if (QString word = name ? wordOf(name) : QString(); !word.isEmpty())
            return word;
    }
    return {};
}

Expected<oEXIV2> imageOf(const QString &path, const RegularFile &file)
{
    if (!brandMayBeImage(file.head(kBrandHeadLength)))
        return failure(QStringLiteral("Not an image"));
    auto image = oEXIV2::initWithFile(file, path, false);
    return image && isHeifType(image->data().mimeType.value_or(QString()))
        ? oEXIV2::initWithHeifFilePath(path)
        : image;
}

QStringList tagsOfExifTool()
{
    QStringList tags;
    for (const Fact &fact : kFacts) {
        for (const char *tag : fact.exifTool) {
            if (tag)
                tags.append(QLatin1String(tag));
        }
    }
    return tags;
}

/// What counts of a word when it is compared.
QString essenceOf(const Fact &fact, const QString &word)
{
    if (fact.kind != FactKind::Date)
        return word.trimmed().toCaseFolded();
    constexpr qsizetype kDigitsOfSecond = 14;
    QString digits;
    std::ranges::copy_if(word, std::back_inserter(digits), [](QChar letter) { return letter.isDigit(); });
    return digits.left(kDigitsOfSecond);
}

bool areEqual(const Fact &fact, const QString &left, const QString &right)
{
    bool isNumber = false;
    const double first = left.toDouble(&isNumber);
    const double second = isNumber ? right.toDouble(&isNumber) : 0;
    if (fact.kind == FactKind::Number && isNumber)
        return std::abs(first - second) <= fact.tolerance;
    return essenceOf(fact, left) == essenceOf(fact, right);
}

/// An unset date is a word of zeros.
bool saysSomething(const Fact &fact, const QString &word)
{
    if (fact.kind == FactKind::Date)
        return std::ranges::any_of(essenceOf(fact, word), [](QChar digit) { return digit != u'0'; });
    return !word.isEmpty();
}

/// The rows under a heading; "" when there are none.
QString section(const QString &heading, const std::vector<FactRow> &rows,
                const std::array<qsizetype, 4> &widths)
{
    if (rows.empty())
        return {};
    QString text = heading + u'\n';
    for (const FactRow &row : rows) {
        QString line = QStringLiteral("  ");
        for (std::size_t i = 0; i < row.size(); ++i)
            line += row[i].leftJustified(widths[i] + 2);
        while (line.endsWith(u' '))
            line.chop(1);
        text += line + u'\n';
    }
    return text;
}

} // namespace

EngineVerdict verdictOn(const Fact &fact, const EngineWords &words)
{
    std::vector<QString> said;
    std::ranges::copy_if(words, std::back_inserter(said),
                         [&](const QString &word) { return saysSomething(fact, word); });
    if (said.size() < 2)
        return said.empty() ? EngineVerdict::Silent : EngineVerdict::Alone;
    const bool agree
        = std::ranges::all_of(said, [&](const QString &word) { return areEqual(fact, said.front(), word); });
    return agree ? EngineVerdict::Agree : EngineVerdict::Differ;
}

Expected<QString> enginesReport(const QString &path, oExifToolStayOpenProcess *exifTool)
{
    const auto file = RegularFile::open(path);
    if (!file)
        return tl::unexpected(file.error());
    oMediaInfo library;
    const bool isOpen = library.Open(path).has_value();
    const auto image = imageOf(path, *file);
    const auto tags = ExifToolUtilities::plainTagsOfFile(path, tagsOfExifTool(), exifTool);

    std::array<std::vector<FactRow>, 3> rows;
    std::array<qsizetype, 4> widths{};
    for (const Fact &fact : kFacts) {
        const EngineWords words{
            isOpen ? wordOfMediaInfo(fact, library) : QString(),
            image ? firstWord(fact.exiv2, [&](const char *key) { return wordOfExiv2(key, image->data()); })
                  : QString(),
            tags ? firstWord(fact.exifTool, [&](const char *tag) { return tags->value(QLatin1String(tag)); })
                 : QString(),
        };
        const EngineVerdict verdict = verdictOn(fact, words);
        if (verdict == EngineVerdict::Silent)
            continue;
        FactRow row{fact.name, words[0], words[1], words[2]};
        for (std::size_t i = 0; i < row.size(); ++i) {
            row[i] = row[i].isEmpty() ? QStringLiteral("-") : row[i].simplified();
            widths[i] = std::max(widths[i], row[i].size());
        }
        rows[static_cast<std::size_t>(verdict)].push_back(std::move(row));
    }
    const FactRow names{QString(), QStringLiteral("MediaInfo"), QStringLiteral("exiv2"),
                        QStringLiteral("exiftool")};
    for (std::size_t i = 0; i < names.size(); ++i)
        widths[i] = std::max(widths[i], names[i].size());
    QString text = section({}, {names}, widths).sliced(1);
    text += section(QStringLiteral("They differ:"), rows[0], widths);
    text += section(QStringLiteral("They agree:"), rows[1], widths);
    text += section(QStringLiteral("One alone:"), rows[2], widths);
    return tags ? text : text + tags.error().description + u'\n';
}

} // namespace quorvin

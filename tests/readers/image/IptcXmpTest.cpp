// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/image/ImageExtended.h"
#include "readers/image/IptcXmpExtraction.h"
#include "readers/image/oEXIV2.h"
#include "support/Pictures.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace quorvin {

using test::imageWith;
using test::TestFolder;

TEST(Iptc, RepeatedDatasetsAreOneLine)
{
    Exiv2::IptcData iptc;
    for (const char *word : {"harbour", "", "dawn", "no\xff", "sea"}) {
        Exiv2::StringValue value(word);
        iptc.add(Exiv2::IptcKey("Iptc.Application2.Keywords"), &value);
    }
    ImageMetadata result;
    prepareIptc(*imageWith({}, iptc), result);
    ASSERT_EQ(result.iptc.count(), 1U);
    EXPECT_EQ(result.iptc[0].value, "harbour, dawn, sea");
}

TEST(Xmp, EmptyValueIsKeptAndMembersOfTheFlashReadAsWords)
{
    Exiv2::XmpData xmp;
    const Exiv2::XmpTextValue structure("type=\"Struct\"");
    xmp.add(Exiv2::XmpKey("Xmp.exif.Flash"), &structure);
    xmp["Xmp.exif.Flash/exif:Fired"] = "True";
    xmp["Xmp.tiff.NativeDigest"] = "1";
    xmp["Xmp.crs.NativeDigest"] = "2";
    xmp["Xmp.dc.source"] = "";
    ImageMetadata result;
    prepareXmp(*imageWith({}, {}, xmp), result);

    ParameterGroups groups;
    prepareExiv2Data(result, {}, groups);
    QStringList shown;
    for (const auto &group : groups.groups()) {
        for (const auto &parameter : groups.parameters(group.streams.front()))
            shown.append(group.key + u'|' + parameter.term->label + u'|' + groups.value(parameter));
    }
    const QStringList xmpRows = shown.filter(QStringLiteral("XMP"));
    EXPECT_EQ(xmpRows.join(u'\n'),
              QStringLiteral("XMP|Source|\nXMP|Flash Fired|True\nCamera Raw Settings (XMP)|NativeDigest|2"));
}

TEST(Xmp, FileKeepsItsOwnPrefixWhateverWasReadBefore)
{
    const auto keys = [](const QByteArray &prefix) {
        QByteArray packet = R"(<x:xmpmeta xmlns:x="adobe:ns:meta/"><rdf:RDF
          xmlns:rdf="http://www.w3.org/1999/02/22-rdf-syntax-ns#"><rdf:Description rdf:about=""
          xmlns:P="http://example.org/prefixes/" P:a="1"><P:b rdf:parseType="Resource"><P:c>2</P:c></P:b>
          </rdf:Description></rdf:RDF></x:xmpmeta>)";
        packet.replace("P:", prefix + ':').replace(":P=", ':' + prefix + '=');
        const TestFolder folder;
        const auto image = oEXIV2::initWithFilename(folder.write(QStringLiteral("a.xmp"), packet));
        QStringList found;
        for (std::size_t i = 0; image && i < image->data().xmp.count(); ++i)
            found.append(image->data().xmp[i].term->key);
        return found.join(u' ');
    };
    EXPECT_EQ(keys("Own"), QStringLiteral("Xmp.Own.a Xmp.Own.b Xmp.Own.b/Own:c"));
    EXPECT_EQ(keys("Other"), QStringLiteral("Xmp.Other.a Xmp.Other.b Xmp.Other.b/Other:c"));
}

TEST(Xmp, FileThatTakesAPrefixOfTheLibraryLeavesItToTheNext)
{
    const auto label = [](const QByteArray &uri) {
        const QByteArray packet = R"(<x:xmpmeta xmlns:x="adobe:ns:meta/"><rdf:RDF
          xmlns:rdf="http://www.w3.org/1999/02/22-rdf-syntax-ns#"><rdf:Description rdf:about=""
          xmlns:xmp=")"
            + uri + R"(" xmp:CreatorTool="1"/></rdf:RDF></x:xmpmeta>)";
        const TestFolder folder;
        const auto image = oEXIV2::initWithFilename(folder.write(QStringLiteral("a.xmp"), packet));
        return image && !image->data().xmp.isEmpty() ? image->data().xmp[0].term->label : QString();
    };
    const QByteArray own = "http://ns.adobe.com/xap/1.0/";
    EXPECT_EQ(label(own), QStringLiteral("Creator Tool"));
    EXPECT_EQ(label("http://example.com/notxmp/"), QStringLiteral("CreatorTool"));
    EXPECT_EQ(label(own), QStringLiteral("Creator Tool"));
}

TEST(Xmp, PrefixOfNoNamespaceCostsItsPropertyAlone)
{
    const QByteArray packet = R"(<x:xmpmeta xmlns:x="adobe:ns:meta/"><rdf:RDF
      xmlns:rdf="http://www.w3.org/1999/02/22-rdf-syntax-ns#"><rdf:Description rdf:about=""
      xmlns:dc="http://purl.org/dc/elements/1.1/" xmlns:odd="http://odd/" dc:source="a" odd:b="c"/>
      </rdf:RDF></x:xmpmeta>)";
    Exiv2::XmpData xmp;
    Exiv2::XmpParser::decode(xmp, packet.toStdString());
    ImageMetadata result;
    prepareXmp(*imageWith({}, {}, xmp), result);
    EXPECT_EQ(result.xmp.value(QStringLiteral("Xmp.dc.source")), QStringLiteral("a"));
}

} // namespace quorvin

// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/image/XmpText.h"

#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace quorvin {

using namespace Qt::StringLiterals;

TEST(XmpText, LaysAPacketOutAndKeepsWhatItSays)
{
    EXPECT_EQ(
        arrangedXmp(u"<?xpacket begin='\xFEFF' id='W5M0'?> <x:xmpmeta xmlns:x=\"adobe:ns:meta/\">"
                    "<rdf:li xml:lang=\"de\">Fels &amp; Eis</rdf:li>\n\n<n1:e a=\"1\"/></x:xmpmeta>\n   "
                    "<?xpacket end='w'?>"_s),
        u"<?xpacket begin='\xFEFF' id='W5M0'?>\n"
        "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">\n"
        "  <rdf:li xml:lang=\"de\">Fels &amp; Eis</rdf:li>\n"
        "  <n1:e a=\"1\"/>\n"
        "</x:xmpmeta>\n"
        "<?xpacket end='w'?>"_s);
}

TEST(XmpText, LeavesWhatIsNoPacketAsItIs)
{
    const QString deep = u"<a>"_s.repeated(200'000);
    const QString bomb = u"<!DOCTYPE a [<!ENTITY b \"cc\"><!ENTITY d \"&b;&b;\">]><a>&d;</a>"_s;
    for (const QString &text : {QString(), u"Exiv2 exception: no"_s, u"<a/>"_s, u"<?x a?><a/>"_s,
                                u"<?x a?><?x b?><a/>"_s, u"<a/><?x a?><?x b?>"_s, u"<?x a?><a><?x b?>"_s,
                                u"<?x a?><a/><?x b?>&"_s, bomb, QString(u"<?x a?>"_s + deep)})
        EXPECT_EQ(arrangedXmp(text), text) << text.left(40).toStdString();
}

} // namespace quorvin

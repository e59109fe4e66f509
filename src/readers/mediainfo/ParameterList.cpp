// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/mediainfo/ParameterList.h"

#include "readers/mediainfo/oMediaInfo.h"

#include <QXmlStreamWriter>

namespace quorvin {

QString parameterPropertyList()
{
    QString text;
    QXmlStreamWriter xml(&text);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(-1);
    xml.writeStartDocument();
    xml.writeDTD(QStringLiteral("<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                                "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">"));
    xml.writeStartElement(QStringLiteral("plist"));
    xml.writeAttribute(QStringLiteral("version"), QStringLiteral("1.0"));
    xml.writeStartElement(QStringLiteral("dict"));
    for (const auto &[kind, names] : oMediaInfo::dictionaryOfParameters()) {
        xml.writeTextElement(QStringLiteral("key"), kind);
        xml.writeStartElement(QStringLiteral("array"));
        for (const QString &name : names)
            xml.writeTextElement(QStringLiteral("string"), name);
        xml.writeEndElement();
    }
    xml.writeEndDocument();
    return text;
}

} // namespace quorvin

// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/image/XmpText.h"

#include <QStringList>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <optional>

namespace quorvin {

namespace {

constexpr int kMostDepth = 100; ///< an indented text grows with the square of it

/// Copies one element with all in it, from its start to its end; false when it can't.
bool copyElement(QXmlStreamReader &xml, QXmlStreamWriter &writer)
{
    int depth = 0;
    for (; !xml.atEnd() && depth <= kMostDepth; xml.readNext()) {
        if (xml.isStartElement()) {
            ++depth;
            writer.writeStartElement(xml.qualifiedName().toString());
            writer.writeAttributes(xml.attributes());
        } else if (xml.isEndElement()) {
            writer.writeEndElement();
            if (--depth == 0)
                return true;
        } else if (!xml.isWhitespace()) {
            writer.writeCurrentToken(xml);
        }
    }
    return false;
}

QString instructionOf(const QXmlStreamReader &xml)
{
    return QStringLiteral("<?%1 %2?>")
        .arg(xml.processingInstructionTarget(), xml.processingInstructionData());
}

/// The three parts of a packet; absent for anything else.
std::optional<QStringList> partsOfPacket(const QString &packet)
{
    QXmlStreamReader xml(packet);
    // Prefixes are to stay as they were chosen.
    xml.setNamespaceProcessing(false);
    QStringList parts;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isProcessingInstruction()) {
            parts.append(instructionOf(xml));
        } else if (xml.isStartElement()) {
            QString element;
            QXmlStreamWriter writer(&element);
            writer.setAutoFormatting(true);
            writer.setAutoFormattingIndent(2);
            if (parts.size() != 1 || !copyElement(xml, writer))
                return std::nullopt;
            parts.append(element.trimmed());
        }
    }
    return xml.hasError() || parts.size() != 3 ? std::nullopt : std::optional(parts);
}

} // namespace

QString arrangedXmp(const QString &packet)
{
    const auto parts = partsOfPacket(packet);
    return parts ? parts->join(u'\n') : packet;
}

} // namespace quorvin

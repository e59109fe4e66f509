// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/TerminalText.h"

#include <QFileDevice>

#include <utility>

namespace quorvin::cli {

namespace {

constexpr uchar kLeadOfControls = 0xC2; ///< U+0080 to U+009F are this byte and one more

bool isControl(uchar byte)
{
    return (byte < 0x20 && byte != '\n' && byte != '\t' && byte != '\0') || byte == 0x7F
        || (byte >= 0x80 && byte < 0xA0);
}

int bytesBehind(uchar lead)
{
    return lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
}

void appendShown(uchar byte, QByteArray &text)
{
    text += '\\';
    text += QByteArray::number(byte, 8).rightJustified(3, '0');
}

} // namespace

TerminalText::TerminalText(QFileDevice &terminal) : _terminal(terminal)
{
    open(QIODevice::WriteOnly | QIODevice::Unbuffered);
}

qint64 TerminalText::readData(char *, qint64)
{
    return -1;
}

qint64 TerminalText::writeData(const char *data, qint64 size)
{
    QByteArray text;
    for (const char byte : QByteArrayView(data, size))
        append(static_cast<uchar>(byte), text);
    if (_terminal.write(text) == text.size() && _terminal.flush())
        return size;
    setErrorString(_terminal.errorString());
    return -1;
}

void TerminalText::append(uchar byte, QByteArray &text)
{
    const bool continues = (byte & 0xC0) == 0x80 && _missing > 0;
    _missing = continues ? _missing - 1 : bytesBehind(byte);
    // The first byte of what may be a control character waits for the second.
    const bool wasHeld = std::exchange(_isHeld, byte == kLeadOfControls);
    if (wasHeld && continues && isControl(byte)) {
        appendShown(byte, text);
        return;
    }
    if (wasHeld)
        text += static_cast<char>(kLeadOfControls);
    if (_isHeld)
        return;
    if (!continues && isControl(byte))
        appendShown(byte, text);
    else
        text += static_cast<char>(byte);
}

} // namespace quorvin::cli

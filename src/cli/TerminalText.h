// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QIODevice>

class QFileDevice;

namespace quorvin::cli {

/// Hands UTF-8 text on to a terminal, with what the terminal would obey in names and values (escape
/// sequences, carriage returns) as its octal number. Line feeds, tabs and zero bytes stay. One thread.
class TerminalText : public QIODevice {
public:
    /// The terminal is open for writing, and outlives this.
    explicit TerminalText(QFileDevice &terminal);

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 most) override;
    qint64 writeData(const char *data, qint64 size) override;

private:
    void append(uchar byte, QByteArray &text);

    QFileDevice &_terminal;
    int _missing = 0; ///< bytes that the character at hand still wants
    bool _isHeld = false; ///< its first byte was not handed on yet
};

} // namespace quorvin::cli

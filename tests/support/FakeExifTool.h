// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "support/TestFolder.h"

namespace quorvin::test {

/// As long as it lives, this program is the exiftool that is found. It speaks as exiftool does, but obeys the
/// name of the file: "hang", "die", "flood", "complain", "environment"; any other is answered with the
/// arguments.
class FakeExifTool {
public:
    FakeExifTool();
    ~FakeExifTool();
    FakeExifTool(const FakeExifTool &) = delete;
    FakeExifTool &operator=(const FakeExifTool &) = delete;

private:
    TestFolder _folder;
    QByteArray _path;
};

/// As long as it lives, no exiftool is found.
class NoExifTool {
public:
    NoExifTool();
    ~NoExifTool();
    NoExifTool(const NoExifTool &) = delete;
    NoExifTool &operator=(const NoExifTool &) = delete;

private:
    QByteArray _path;
};

} // namespace quorvin::test

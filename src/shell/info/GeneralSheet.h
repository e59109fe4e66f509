// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/GeneralFacts.h"
#include "shell/info/FactList.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace quorvin {

class QuorvinData;
struct FileSum;

/// What stands on a sheet of General, of one file or of several: texts for people.
struct GeneralSheet {
    QString headline;
    QString folder; ///< the user's own as "~"
    QString mimeName; ///< of the kind that all are of; "" when there is none
    std::vector<FactList::Fact> facts;
    std::vector<GeneralLine> lines;

    bool operator==(const GeneralSheet &) const = default;
};

/// `place`: where it was recorded; "" when nobody knows.
GeneralSheet sheetOf(const QuorvinData &record, const QString &place = {});
/// With what all files have in common, sums, and a word where they differ. Sizes are in units of 1000 or of
/// 1024 bytes.
GeneralSheet sheetOf(const FileSum &sum, bool useSIUnits);

/// Of all facts that a sheet may have.
QStringList factLabels();

/// A folder for people: the user's own as "~".
QString shortFolder(const QString &folder);

} // namespace quorvin

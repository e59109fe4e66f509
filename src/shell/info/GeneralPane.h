// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/desktop/TownLookup.h"
#include "shell/info/GeneralSheet.h"
#include "shell/info/Pane.h"

#include <optional>

class QBoxLayout;
class QScrollArea;

namespace quorvin {

class CoverView;
class ElidedLabel;
class PrivacyChip;
class StreamTable;

/// What the General tab says of a file, on one sheet that scrolls as a whole: its cover, its name and folder,
/// the facts, and a line for each stream. All labels end, and all values begin, at one place for all files.
/// Several files have the same sheet.
class GeneralPane final : public Pane {
    Q_OBJECT
public:
    explicit GeneralPane(QWidget *parent = nullptr);

    /// What several files have in common, shown in place of the record from now on; absent: the record again.
    void setSum(std::optional<GeneralSheet> sum);

    bool canCopy() const override;
    /// The lines that are selected, or the fact that has the keyboard, as text.
    void copy() const override;
    void copyValues() const override;
    void openCurrent() override;
    void describe(CommandState &state) const override;
    void registerAt(CommandSet &commands) override;

Q_SIGNALS:
    void streamActivated(const QString &key, quint64 streamIndex);
    void locationActivated();
    /// The cover of a file was double-clicked, or had the keyboard at Return or Space.
    void coverOpened();
    /// What gives a person away is to be taken out of the file.
    void stripWanted();

protected:
    void fill(const QuorvinData *record) override;
    void applyLook(const RowLook &look) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void layOut();
    void connectParts();
    void empty();
    void showSheet(const GeneralSheet &sheet);
    void showCover(const QuorvinData &record);
    /// Where cover, labels and values stand in the width there is.
    void place();
    /// Of the labels that the program itself gives, in the font of the pane.
    int widestLabel() const;

    QScrollArea *_scroll;
    QWidget *_sheet;
    CoverView *_cover;
    ElidedLabel *_headline;
    ElidedLabel *_folder;
    FactList *_facts;
    PrivacyChip *_privacy;
    QWidget *_line;
    StreamTable *_streams;
    std::optional<GeneralSheet> _sum; ///< of several files
    QBoxLayout *_top; ///< the cover and what stands beside it, or below it
    TownLookup _towns;
    QString _path; ///< of the file whose record is shown; "" else
    int _shown = 0; ///< counts what was shown, so that a late cover is not shown for another file
};

} // namespace quorvin

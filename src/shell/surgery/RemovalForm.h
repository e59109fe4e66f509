// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistItem.h"
#include "model/RemovalResult.h"

#include <QWidget>

#include <array>
#include <vector>

class QCheckBox;
class QLabel;
class QRadioButton;
class QVBoxLayout;

namespace quorvin {

/// Files of a window that a removal may be meant for, in the order of the list; of them the images.
struct RemovalFiles {
    std::vector<FilelistItemPtr> selected = {};
    std::vector<FilelistItemPtr> all = {};
};

/// Asks what is to be removed, from which images, and how. Main thread.
class RemovalForm final : public QWidget {
    Q_OBJECT
public:
    /// Begins with what is checked in `options`. `isFixed`: they are what goes, and nothing is asked of it.
    RemovalForm(const RemovalFiles &files, const oEXIV2Metadata &options, bool isFixed,
                QWidget *parent = nullptr);

    /// Of the files that are chosen.
    const std::vector<FilelistItemPtr> &images() const;
    oEXIV2Metadata options() const;
    bool removesAnything() const { return options() != oEXIV2Metadata(); }
    bool keepsTimes() const;
    bool allowsHardLinks() const;

Q_SIGNALS:
    /// Something else is asked for.
    void changed();

private:
    /// Of one choice.
    struct Images {
        std::vector<FilelistItemPtr> files;
        std::size_t others = 0; ///< that are no images
    };

    static Images imagesOf(const std::vector<FilelistItemPtr> &files);
    bool isSelectionChosen() const;
    void addFiles(QVBoxLayout &column);
    void addKinds(QVBoxLayout &column);
    void tellOthers();

    Images _selected;
    Images _all;
    QRadioButton *_onlySelected = nullptr; ///< null where there is no choice
    QRadioButton *_everything = nullptr;
    QLabel *_others;
    std::array<QCheckBox *, 5> _kinds{}; ///< in the order of the options
    QCheckBox *_keepsTimes;
    QCheckBox *_allowsHardLinks;
};

} // namespace quorvin

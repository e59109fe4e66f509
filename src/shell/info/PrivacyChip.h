// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/PrivateParameters.h"

#include <QString>
#include <QWidget>

#include <vector>

class QLabel;
class QToolButton;

namespace quorvin {

/// Says what of a file gives a person away, below its facts and in line with them, with a button that leads
/// to its removal. Not to be seen for a file that gives nothing away. Main thread.
class PrivacyChip final : public QWidget {
    Q_OBJECT
public:
    explicit PrivacyChip(QWidget *parent = nullptr);

    /// Only what can be removed has the button.
    void setKinds(const std::vector<PrivateKind> &kinds, bool canBeRemoved);
    void setLabelsAlignment(Qt::Alignment alignment);
    /// Device-independent pixels: of the label, and between it and what follows.
    void setLabelsWidth(int width);
    void setGap(int gap);
    /// The text of the label.
    QString label() const;

Q_SIGNALS:
    void stripWanted();

private:
    QLabel *_label;
    QLabel *_kinds;
    QToolButton *_strip;
};

/// "position, serial number, owner".
QString privateKindsInWords(const std::vector<PrivateKind> &kinds);

} // namespace quorvin

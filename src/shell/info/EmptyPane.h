// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/info/Pane.h"

class QLabel;
class QPushButton;
class QVBoxLayout;

namespace quorvin {

/// What stands where there is nothing to show: a picture in outline, why there is nothing, and what to do.
class EmptyPane final : public Pane {
    Q_OBJECT
public:
    explicit EmptyPane(const QString &iconName, QWidget *parent = nullptr);

    void setTexts(const QString &title, const QString &hint);
    enum ButtonPlace { OverHint, UnderHint };
    QPushButton *addButton(const QString &text, ButtonPlace place);

protected:
    void fill(const QuorvinData *) override { }

private:
    QLabel *_title;
    QLabel *_hint;
    QVBoxLayout *_column;
};

} // namespace quorvin

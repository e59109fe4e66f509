// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/info/Pane.h"

class QLabel;
class QPushButton;

namespace quorvin {

class ElidedLabel;
struct FailureAdvice;

/// A file that could not be read: which one, why, and what can be done.
class FailurePane final : public Pane {
    Q_OBJECT
public:
    explicit FailurePane(QWidget *parent = nullptr);

    void setFailure(const QString &path, const FailureAdvice &advice);

Q_SIGNALS:
    void retryWanted();
    void preferencesWanted();
    void reportWanted();

protected:
    void fill(const QuorvinData *) override { }
    void applyLook(const RowLook &look) override;

private:
    void layOut();

    ElidedLabel *_name;
    ElidedLabel *_folder;
    QLabel *_sentence;
    QLabel *_limit;
    QPushButton *_retry;
    QPushButton *_preferences;
    QPushButton *_report;
};

} // namespace quorvin

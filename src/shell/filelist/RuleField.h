// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLineEdit>
#include <QStringListModel>

class QCompleter;

namespace quorvin {

/// A line in which a rule is written; its words and the parameters of the list complete as one types. Main
/// thread.
class RuleField final : public QLineEdit {
    Q_OBJECT
public:
    /// `names` has the parameters, and must outlive the field.
    explicit RuleField(const QStringListModel &names, QWidget *parent = nullptr);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void offer();
    void take(const QString &word);

    const QStringListModel &_names;
    QStringListModel _words;
    QCompleter *_completer;
};

} // namespace quorvin

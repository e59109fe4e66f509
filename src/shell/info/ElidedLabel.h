// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLabel>

namespace quorvin {

/// A line of text that is cut where it does not fit; its tip has the whole. Main thread.
class ElidedLabel final : public QLabel {
    Q_OBJECT
public:
    explicit ElidedLabel(Qt::TextElideMode mode, QWidget *parent = nullptr);

    const QString &wholeText() const { return _whole; }
    void setWholeText(const QString &text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void fit();

    QString _whole;
    Qt::TextElideMode _mode;
};

} // namespace quorvin

// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

#include <array>

class QLabel;

namespace quorvin {

/// What is said of a file that cannot be shown itself.
struct ShownFacts {
    QString name = {};
    QString kind = {}; ///< "" when it is not known, as with the others
    QString mimeName = {};
    QString size = {};
    QString modified = {};
    QString problem = {}; ///< why it is not shown; "" when nobody could expect it
};

/// The icon of a file and its facts. Main thread.
class FactsView : public QWidget {
    Q_OBJECT
public:
    explicit FactsView(QWidget *parent = nullptr);

    void setFacts(const ShownFacts &facts);
    /// All texts that are shown, a line each.
    QString text() const;

private:
    static constexpr std::size_t kRows = 3;

    QLabel *_icon;
    QLabel *_name;
    QLabel *_problem;
    std::array<QLabel *, kRows> _labels{};
    std::array<QLabel *, kRows> _values{};
};

} // namespace quorvin

// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/info/Pane.h"

namespace quorvin {

class ExtendedOutline;

/// The Extended tab: all parameters of the file as a tree.
class ExtendedPane final : public Pane {
    Q_OBJECT
public:
    explicit ExtendedPane(QWidget *parent = nullptr);

    ExtendedOutline &outline() { return *_outline; }
    /// Selects the group of that stream and gives the tree the keyboard. The pane is current.
    void showGroup(const QString &key, quint64 streamIndex);
    /// The same for the row of that parameter, as `rowOfParameter` finds it.
    void showParameter(const QString &section, quint32 stream, const QString &key);

    bool canCopy() const override;
    void copy() const override;
    void copyValues() const override;
    void selectAll() override;
    void describe(CommandState &state) const override;
    void registerAt(CommandSet &commands) override;
    void setLook(const RowLook &look) override;

protected:
    void fill(const QuorvinData *record) override;

private:
    ExtendedOutline *_outline;
};

} // namespace quorvin

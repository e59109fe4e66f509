// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/QuickInfoStack.h"

#include "shell/info/QuickInfoView.h"

namespace quorvin {

void QuickInfoStack::addPanel(QuickInfoView *panel)
{
    panel->setParent(this);
    _panels.push_back(panel);
    connect(panel, &QuickInfoView::panelHeightDidChange, this, &QuickInfoStack::place);
    place();
}

void QuickInfoStack::place()
{
    int top = 0;
    for (QuickInfoView *panel : _panels) {
        if (panel->isHidden())
            continue;
        // A panel that gets another width may come to another height by that.
        panel->setGeometry(0, top, width(), panel->panelHeight());
        top += panel->panelHeight();
    }
    setMinimumHeight(top);
}

void QuickInfoStack::resizeEvent(QResizeEvent *)
{
    place();
}

} // namespace quorvin

// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/StatusLine.h"

#include "intake/FilelistTotals.h"
#include "shell/info/ElidedLabel.h"

#include <QLabel>
#include <QToolButton>

#include <gtest/gtest.h>

namespace quorvin {

TEST(StatusLine, CountsInWordsAndSaysThingsOnce)
{
    StatusLine line;
    const auto text = [&line] {
        QStringList texts;
        for (const QLabel *label : line.findChildren<QLabel *>()) {
            if (label->isVisibleTo(&line))
                texts.append(label->text());
        }
        return texts.join(u'|');
    };
    line.setTotals({1, 1, 0});
    EXPECT_EQ(text(), QStringLiteral("00:00:00 in 1 file"));
    line.setTotals({1204, 56'789, {}});
    EXPECT_EQ(text(), QStringLiteral("1,204 files (of 56,789 total)"));
    int gone = 0;
    QObject::connect(&line, &StatusLine::nextFailedWanted, [&gone] { ++gone; });
    QToolButton *failed = nullptr;
    line.setTotals({20, 20, {}, 12, 3});
    EXPECT_EQ(text(), QStringLiteral("20 files · 3 not read"));
    for (auto *found : line.findChildren<QToolButton *>())
        failed = found->text() == QStringLiteral("Failed files: 12") ? found : failed;
    ASSERT_TRUE(failed && failed->isVisibleTo(&line));
    failed->click();
    EXPECT_EQ(gone, 1);
    line.setTotals({});
    EXPECT_EQ(text(), QString());
    line.setPlace(QStringLiteral("near <b>"));
    EXPECT_EQ(line.findChild<ElidedLabel *>()->wholeText(), QStringLiteral("near <b>"));
    EXPECT_FALSE(line.findChild<ElidedLabel *>()->isHidden());
    line.setPlace({});
    EXPECT_EQ(text(), QString());
    EXPECT_FALSE(failed->isVisibleTo(&line));

    int shown = 0;
    line.say(QStringLiteral("<b>.txt was written"), QStringLiteral("Show"), [&shown] { ++shown; });
    EXPECT_EQ(line.saying(), QStringLiteral("<b>.txt was written"));
    QToolButton *button = nullptr;
    for (auto *found : line.findChildren<QToolButton *>())
        button = found->text() == QStringLiteral("Show") ? found : button;
    ASSERT_TRUE(button);
    button->click();
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(line.saying(), QString()) << "what was acted upon goes";
    line.say(QStringLiteral("second"));
    button->click();
    EXPECT_EQ(shown, 1) << "the action of an older message";
}

} // namespace quorvin

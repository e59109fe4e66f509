// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/PlaceNote.h"

#include "places/Towns.h"
#include "shell/info/ElidedLabel.h"
#include "shell/info/FactList.h"
#include "shell/window/SampleWindow.h"
#include "shell/window/StatusLine.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>

#include <gtest/gtest.h>

namespace quorvin {

using namespace Qt::StringLiterals;
using test::spinUntil;

namespace {

struct PlaceNoteWindow : test::SampleWindow {
    /// In the status line; "" while it is hidden.
    QString place() const
    {
        const auto *label = window->myView().statusLine().findChild<ElidedLabel *>();
        return label->isVisible() ? label->wholeText() : QString();
    }
    /// On the General tab.
    QString placeFact() const
    {
        for (const QLabel *label :
             window->myView().info().findChild<FactList *>()->findChildren<QLabel *>()) {
            if (label->text() == u"Place" && label->isVisible())
                return qobject_cast<const QLabel *>(label->buddy())->text();
        }
        return {};
    }
};

} // namespace

TEST_F(PlaceNoteWindow, NamesThePlaceOfTheOneSelectedFile)
{
    if (Towns::instance().towns().empty())
        GTEST_SKIP() << "the library of towns is not here";
    show({"photo.jpg", "tone.wav"});
    window->files().selectRow(0);
    ASSERT_TRUE(spinUntil([this] { return !place().isEmpty() && !placeFact().isEmpty(); }));
    EXPECT_TRUE(place().endsWith(u", France"_s)) << place().toStdString();
    EXPECT_EQ(placeFact(), place());
    const ArrangedFilelist &rows = window->files().arranged();
    window->files().selection().select({rows.index(0, 0), rows.index(1, 0)}, QItemSelectionModel::Select);
    EXPECT_EQ(place(), QString()) << "several are selected";
    window->files().selectRow(0);
    EXPECT_TRUE(place().endsWith(u", France"_s)) << place().toStdString();
    window->files().selectRow(1);
    EXPECT_EQ(place(), QString()) << "a file without a position";
    EXPECT_TRUE(spinUntil([this] { return placeFact().isEmpty(); }));

    window->files().selectRow(0);
    run(Command::copyGeneralInfo);
    EXPECT_FALSE(QGuiApplication::clipboard()->text().contains(u"France"_s))
        << "what is copied stays as it is";
}

} // namespace quorvin

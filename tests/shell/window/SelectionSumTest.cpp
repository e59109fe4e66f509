// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/SelectionSum.h"

#include "shell/info/ElidedLabel.h"
#include "shell/info/FactList.h"
#include "shell/info/GeneralSheet.h"
#include "shell/outline/ExtendedOutline.h"
#include "shell/window/SampleWindow.h"

#include <QLabel>

#include <gtest/gtest.h>

#include <algorithm>

namespace quorvin {

using namespace Qt::StringLiterals;
using test::spinUntil;

namespace {

struct SelectionSumWindow : test::SampleWindow {
    void select(int first, int last) const
    {
        const ArrangedFilelist &rows = window->files().arranged();
        window->files().selection().select({rows.index(first, 0), rows.index(last, 0)},
                                           QItemSelectionModel::Select);
    }
    /// All facts that are shown, and the first line.
    QString texts() const
    {
        QStringList texts;
        for (const ElidedLabel *label : window->myView().info().findChildren<ElidedLabel *>()) {
            if (label->isVisible())
                texts.append(label->wholeText());
        }
        for (const QLabel *label :
             window->myView().info().findChild<FactList *>()->findChildren<QLabel *>()) {
            if (label->isVisible() && !label->buddy())
                texts.append(label->text() + (label->font().italic() ? u"!"_s : QString()));
        }
        return texts.join(u'|');
    }
    bool shows(const QString &text) const
    {
        return spinUntil([&] { return texts().contains(text); });
    }
};

} // namespace

TEST_F(SelectionSumWindow, TheSheetIsThatOfAllSelectedFiles)
{
    select(0, 2);
    EXPECT_TRUE(shows(u"3 files"_s)) << texts().toStdString();
    EXPECT_TRUE(shows(u"differs!"_s)) << texts().toStdString();
    EXPECT_TRUE(texts().contains(u" in all"_s));
    window->files().refreshAll();
    EXPECT_TRUE(spinUntil([&] { return window->worker().processingIsDone(); }));
    EXPECT_TRUE(spinUntil([&] { return texts().contains(u" in all"_s) && !texts().contains(u"not read"_s); }))
        << "follows what is read: " << texts().toStdString();
    run(Command::selectExtendedTab);
    EXPECT_TRUE(window->myView().info().outline().isVisible()) << "the current file's";
    run(Command::selectGeneralTab);
    window->files().selectRow(2);
    EXPECT_TRUE(shows(u"tone.wav"_s)) << texts().toStdString();
    EXPECT_FALSE(texts().contains(u"differs"_s));
}

TEST_F(SelectionSumWindow, SaysWhichFilesAreNotInIt)
{
    show({"tone.wav", "none.wav"});
    select(0, 1);
    EXPECT_TRUE(shows(u"1 failed"_s)) << texts().toStdString();
    EXPECT_FALSE(texts().contains(u"differs"_s)) << "one record alone has all in common with itself";
    window->files().selectRow(1);
    EXPECT_TRUE(spinUntil([&] { return !texts().contains(u"2 files"_s); }));
}

TEST_F(SelectionSumWindow, ALongSelectionIsSummedUpElsewhere)
{
    constexpr int kCount = SelectionSum::kFewFiles + 50;
    QStringList paths;
    for (int i = 0; i < kCount; ++i)
        paths.append(folder.write(u"d/%1.txt"_s.arg(i)));
    window->files().processFiles(paths);
    ASSERT_TRUE(spinUntil([&] { return window->files().arranged().rowCount() == kCount; }));
    select(0, kCount - 1);
    EXPECT_TRUE(shows(u"550 files"_s)) << texts().toStdString();
    window->files().removeSelectedItems();
    EXPECT_TRUE(spinUntil([&] { return !texts().contains(u"files"_s); }));
}

TEST(GeneralSheet, SaysWhatDiffersAndWhatNotAllHave)
{
    FileSum sum;
    sum.files = 12;
    sum.failed = 2;
    sum.bytes = 2048;
    sum.kinds = {{u"JPEG image"_s, 7}, {u"WAV audio"_s, 3}};
    sum.imageSize = {StyledText{u"10 x 10"_s}, 7};
    sum.lines = {{u"ISO"_s, {{}, 7}}, {u"Lens"_s, {StyledText{u"50 mm"_s}, 10}}, {u"Nothing"_s, {}}};
    const GeneralSheet sheet = sheetOf(sum, false);
    QStringList facts;
    for (const FactList::Fact &fact : sheet.facts)
        facts.append(fact.label + u'=' + fact.value);
    EXPECT_EQ(facts.join(u'|'),
              u"Kind=JPEG image: 7\nWAV audio: 3|Size=2.00 KiB in all|Image Size=10 x 10 (in 7 of 10 files)|"
              "Missing=2 failed"_s);
    ASSERT_EQ(sheet.lines.size(), 2U);
    const QString differs = u"differs (in 7 of 10 files)"_s;
    EXPECT_EQ(sheet.lines[0].value, (StyledText{.plain = differs, .italicLength = differs.size()}));
    EXPECT_EQ(sheet.lines[1].value, StyledText{u"50 mm"_s});
    EXPECT_FALSE(sheet.lines[1].isMediaStream()) << "it leads to no group of one file";
    for (int i = 0; i < 20; ++i)
        sum.kinds.push_back({QString::number(i), 1});
    EXPECT_TRUE(sheetOf(sum, true).facts.front().value.endsWith(u"and 14 other kinds"_s));
    EXPECT_EQ(sheetOf(sum, true).facts[1].value, u"2.05 KB in all"_s);
}

} // namespace quorvin

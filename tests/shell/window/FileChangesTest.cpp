// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filefacts/ExtendedAttributes.h"
#include "shell/outline/ExtendedOutline.h"
#include "shell/window/SampleWindow.h"

#include <QDateTime>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

#include <gtest/gtest.h>

#include <algorithm>

namespace quorvin {

using namespace Qt::StringLiterals;
using test::spinUntil;

namespace {

/// A film that was made on 1 January 2001 at 01:00, by its own account.
QByteArray datedFilm()
{
    constexpr int kCreated = 8; ///< bytes from the box's name
    QByteArray bytes = test::contentOf(test::sample(u"movie.mp4"_s));
    const qsizetype at = bytes.indexOf("mvhd") + kCreated;
    return bytes.replace(at, 4, QByteArray::fromHex("b6758710"));
}

struct FileChangesWindow : test::SampleWindow {
    QString path = folder.write(u"film.mp4"_s, datedFilm());

    void showFile() const
    {
        window->files().processFiles({path});
        ASSERT_TRUE(spinUntil([this] {
            return window->worker().currentFilePath() == path && window->worker().currentQuorvinData();
        }));
        window->setCurrentTab(Tab::Extended);
    }
    /// False when there is no such row.
    bool select(const QString &name) const
    {
        ExtendedOutline &outline = window->myView().info().outline();
        const QModelIndexList rows = outline.model()->match(outline.model()->index(0, 0), Qt::DisplayRole,
                                                            name, 1, Qt::MatchExactly | Qt::MatchRecursive);
        if (rows.isEmpty())
            return false;
        outline.setCurrentIndex(rows.front());
        return true;
    }
    /// Answers the question that the command asks by the button of that name.
    void answer(Command command, const QString &button) const
    {
        run(command);
        const auto questions = window->findChildren<QMessageBox *>();
        ASSERT_FALSE(questions.isEmpty());
        const auto buttons = questions.last()->buttons();
        const auto own = std::ranges::find_if(
            buttons, [&](const QAbstractButton *one) { return one->text().remove(u'&') == button; });
        ASSERT_NE(own, buttons.end());
        (*own)->click();
    }
};

} // namespace

TEST_F(FileChangesWindow, TheDateIsSetWhenTheUserAgrees)
{
    showFile();
    const QDateTime before = QFileInfo(path).lastModified();
    ASSERT_TRUE(spinUntil([this] { return select(u"Format"_s); }));
    EXPECT_FALSE(canRun(Command::touchDate)) << "it is no date";
    ASSERT_TRUE(spinUntil([this] { return select(u"Encoded date"_s); }));
    answer(Command::touchDate, u"Cancel"_s);
    EXPECT_EQ(QFileInfo(path).lastModified(), before);
    answer(Command::touchDate, u"Set Date"_s);
    const QDateTime then(QDate(2001, 1, 1), QTime(1, 0), Qt::UTC);
    EXPECT_TRUE(spinUntil([&] { return QFileInfo(path).lastModified() == then; }));
}

TEST_F(FileChangesWindow, AnAttributeIsRemovedWhenTheUserAgrees)
{
    folder.setAttribute(path, "user.xdg.comment", "of a friend");
    showFile();
    ASSERT_TRUE(spinUntil([this] { return select(u"Finder comment"_s); }));
    const auto hasComment
        = [this] { return !Utilities::listExtendedAttributesOnFileAtPath(path)->isEmpty(); };
    ASSERT_TRUE(hasComment());
    answer(Command::removeExtendedAttribute, u"Cancel"_s);
    EXPECT_TRUE(hasComment());
    answer(Command::removeExtendedAttribute, u"Remove"_s);
    EXPECT_TRUE(spinUntil([&] { return !hasComment(); }));
    EXPECT_TRUE(spinUntil([this] { return !select(u"Finder comment"_s); })) << "it is read again";
}

} // namespace quorvin

// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/PrivacyChip.h"
#include "shell/surgery/ReceiptModel.h"
#include "shell/surgery/RemovalSheet.h"
#include "shell/window/SampleWindow.h"
#include "surgery/ImageTraces.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QFileDialog>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <QTreeView>

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>

namespace quorvin {

using namespace Qt::StringLiterals;
using test::spinUntil;

namespace {

/// A window of photos, of which the first is selected, and of a sound.
struct RemovalWindow : test::OneWindow {
    const QByteArray photo = test::contentOf(test::sample(u"photo.jpg"_s));
    const QStringList paths{folder.write(u"p/one.jpg"_s, photo), folder.write(u"p/three.jpg"_s, photo),
                            folder.write(u"p/tone.wav"_s, test::contentOf(test::sample(u"tone.wav"_s))),
                            folder.write(u"p/two.jpg"_s, photo)};
    RemovalSheet *sheet = nullptr;

    void SetUp() override
    {
        window->files().processFiles({folder / u"p"_s});
        ASSERT_TRUE(spinUntil([this] { return isAtRest() && window->files().filelist().size() == 4; }));
    }
    bool isAtRest() const { return window->files().canExportAll(); }
    void open(Command command)
    {
        ASSERT_TRUE(spinUntil([&] { return window->commands().action(command)->isEnabled(); }));
        window->commands().run(command);
        sheet = window->findChild<RemovalSheet *>();
        ASSERT_TRUE(sheet);
    }
    QPushButton *button(const QString &text) const
    {
        for (QPushButton *each : sheet->findChildren<QPushButton *>()) {
            if (each->text().remove(u'&') == text && each->isVisibleTo(sheet))
                return each;
        }
        return nullptr;
    }
    bool says(const QString &words) const
    {
        const auto labels = sheet->findChildren<QLabel *>();
        return std::ranges::any_of(labels,
                                   [&](const QLabel *label) { return label->text().contains(words); });
    }
    bool isPlanned() const { return button(u"Remove"_s) && button(u"Remove"_s)->isEnabled(); }
    const ReceiptModel &receipts() const { return *sheet->findChild<ReceiptModel *>(); }
};

} // namespace

TEST_F(RemovalWindow, TellsWhatGoesRemovesItAndReadsTheFileAgain)
{
    ASSERT_TRUE(window->worker().currentQuorvinData()->generalInfo().latitude);
    open(Command::menuRemoveImageMetadata);
    EXPECT_FALSE(isPlanned()) << "nothing is chosen";
    const auto choices = sheet->findChildren<QRadioButton *>();
    ASSERT_EQ(choices.size(), 2);
    EXPECT_EQ(choices[0]->text(), u"The selected image “one.jpg”"_s);
    EXPECT_EQ(choices[1]->text(), u"All 3 images of the list"_s);
    const QAbstractItemModelTester tester(sheet->findChild<ReceiptModel *>());
    for (QCheckBox *box : sheet->findChildren<QCheckBox *>()) {
        if (box->text().contains(u"Exif"_s) || box->text().contains(u"Position"_s))
            box->click();
    }
    ASSERT_TRUE(spinUntil([this] { return isPlanned(); }));
    EXPECT_TRUE(says(u"1 image to be changed"_s));
    const QModelIndex file = receipts().index(0, ReceiptModel::Name);
    EXPECT_EQ(receipts().index(0, ReceiptModel::Name, file).data(), u"Exif.Image.Orientation"_s);
    EXPECT_EQ(receipts().index(0, ReceiptModel::Outcome, file).data(), u"stays: the picture would turn"_s);
    EXPECT_EQ(test::contentOf(paths[0]), photo) << "it is only a plan";
    folder.setAttribute(paths[0], "user.xdg.origin.url", "https://example.org/one.jpg");

    button(u"Remove"_s)->click();
    ASSERT_TRUE(spinUntil([this] { return button(u"Close"_s) != nullptr; }));
    EXPECT_TRUE(says(u"1 image changed"_s));
    EXPECT_NE(test::contentOf(paths[0]), photo);
    EXPECT_EQ(test::contentOf(paths[3]), photo) << "it was not selected";
    ASSERT_TRUE(spinUntil([this] { return isAtRest(); }));
    EXPECT_EQ(window->files().selectedRow(), 0);
    const QuorvinDataPtr record = window->worker().currentQuorvinData();
    ASSERT_TRUE(record);
    EXPECT_FALSE(record->generalInfo().latitude);

    ASSERT_TRUE(spinUntil([this] { return button(u"Clear That, Too"_s) != nullptr; }));
    button(u"Clear That, Too"_s)->click();
    EXPECT_TRUE(spinUntil([this] { return tracesOf(paths[0]).isEmpty(); }));
    button(u"Save Receipt…"_s)->click();
    auto *dialog = sheet->findChild<QFileDialog *>();
    ASSERT_TRUE(dialog);
    Q_EMIT dialog->fileSelected(folder / u"r.json"_s);
    ASSERT_TRUE(spinUntil([this] { return says(u"r.json"_s); }));
    const QByteArray receipt = test::contentOf(folder / u"r.json"_s);
    EXPECT_TRUE(receipt.contains("\"before\"") && receipt.contains("one.jpg")) << receipt.toStdString();
}

TEST_F(RemovalWindow, TakesThePositionAloneFromAllAndStopsBetweenTwo)
{
    open(Command::removeLocationInfo);
    const auto choices = sheet->findChildren<QRadioButton *>();
    ASSERT_EQ(choices.size(), 2);
    choices[1]->click();
    EXPECT_TRUE(says(u"1 file is no image"_s));
    ASSERT_TRUE(spinUntil([this] { return isPlanned() && receipts().rowCount() == 3; }));
    button(u"Remove"_s)->click();
    sheet->reject();
    EXPECT_FALSE(button(u"Stop"_s)->isEnabled()) << "the sheet stays for the receipt";
    ASSERT_TRUE(spinUntil([this] { return button(u"Close"_s) != nullptr; }));
    EXPECT_TRUE(says(u"stopped before"_s));
    const auto done = static_cast<std::size_t>(receipts().rowCount());
    ASSERT_LT(done, 3U);
    EXPECT_EQ(test::contentOf(paths[3]), photo);
    sheet->reject();
    EXPECT_TRUE(spinUntil([this] { return !window->findChild<RemovalSheet *>(); }));

    open(Command::removeLocationInfo);
    sheet->findChildren<QRadioButton *>()[1]->click();
    ASSERT_TRUE(spinUntil([this] { return isPlanned() && receipts().rowCount() == 3; }));
    button(u"Remove"_s)->click();
    ASSERT_TRUE(spinUntil([this] { return button(u"Close"_s) != nullptr && isAtRest(); }));
    for (const FilelistItemPtr &file : window->files().filelist()) {
        ASSERT_TRUE(file->quorvinData()) << file->filename().toStdString();
        EXPECT_FALSE(file->quorvinData()->generalInfo().latitude) << file->filename().toStdString();
    }
}

TEST_F(RemovalWindow, LeadsFromWhatGivesAPersonAwayToItsRemoval)
{
    const auto chip = [this] { return window->findChild<PrivacyChip *>(); };
    ASSERT_TRUE(spinUntil([&] { return chip()->isVisible(); }));
    EXPECT_TRUE(chip()->findChildren<QLabel *>().last()->text().startsWith(u"position"_s));
    chip()->findChild<QToolButton *>()->click();
    sheet = window->findChild<RemovalSheet *>();
    ASSERT_TRUE(sheet);
    EXPECT_EQ(sheet->options(), (oEXIV2Metadata{true, true, true, true, true}));
    ASSERT_TRUE(spinUntil([this] { return isPlanned(); }));
    button(u"Remove"_s)->click();
    EXPECT_TRUE(spinUntil([&] { return isAtRest() && !chip()->isVisible(); }));
}

TEST_F(RemovalWindow, RefusesWhatHasSeveralNamesUnlessToldOtherwise)
{
    ASSERT_EQ(::link(paths[0].toUtf8().constData(), (folder / u"other"_s).toUtf8().constData()), 0);
    open(Command::removeLocationInfo);
    ASSERT_TRUE(spinUntil([this] { return receipts().rowCount() == 1; }));
    EXPECT_FALSE(isPlanned());
    EXPECT_TRUE(says(u"1 that cannot be changed"_s));
    for (QCheckBox *box : sheet->findChildren<QCheckBox *>()) {
        if (box->text().contains(u"several names"_s))
            box->click();
    }
    EXPECT_TRUE(spinUntil([this] { return isPlanned(); }));
}

} // namespace quorvin

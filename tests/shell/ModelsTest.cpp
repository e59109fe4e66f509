// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/FilelistModel.h"
#include "shell/filelist/FilelistRow.h"
#include "shell/outline/ExtTreeModel.h"
#include "shell/outline/ExtendedOutline.h"
#include "shell/outline/OutlineCopy.h"
#include "support/TestFolder.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QMimeData>
#include <QMouseEvent>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace quorvin {

namespace {

FilelistItemPtr file(const QString &name)
{
    return FilelistItem::itemWithFilename(QStringLiteral("/f/") + name, name);
}

QString names(const std::vector<FilelistItemPtr> &files)
{
    QStringList all;
    for (const FilelistItemPtr &one : files)
        all.append(one->prefixedPath());
    return all.join(u' ');
}

/// "File(a b) Audio1(c)": the groups and their parameters, each with its name as value.
ExtTreeItems tree(const QString &text)
{
    ExtTreeItems groups;
    for (const QString &part : text.split(u')', Qt::SkipEmptyParts)) {
        const QString head = part.section(u'(', 0, 0).trimmed();
        ExtTreeItems leaves;
        for (const QString &name : part.section(u'(', 1).split(u' ', Qt::SkipEmptyParts))
            leaves.push_back(ExtTreeItem::itemWithKey(name, name, name.toUpper()));
        const QString key = QString(head).remove(QRegularExpression(QStringLiteral("\\d")));
        groups.push_back(
            ExtTreeItem::groupTreeWithKey(key, head, leaves, QString(head).remove(key).toULongLong()));
    }
    return groups;
}

/// The open groups, in order.
QString openGroups(const ExtendedOutline &outline)
{
    QStringList open;
    for (int row = 0; row < outline.content().rowCount(); ++row) {
        const QModelIndex index = outline.content().index(row, 0);
        if (outline.isExpanded(index))
            open.append(index.data().toString());
    }
    return open.join(u' ');
}

/// A click with Ctrl on the disclosure sign of that group.
void controlClick(ExtendedOutline &outline, int row)
{
    const QRect item = outline.visualRect(outline.content().index(row, 0));
    const QPointF where(item.left() - 5, item.center().y());
    QMouseEvent press(QEvent::MouseButtonPress, where, outline.viewport()->mapToGlobal(where), Qt::LeftButton,
                      Qt::LeftButton, Qt::ControlModifier);
    QApplication::sendEvent(outline.viewport(), &press);
}

} // namespace

TEST(FilelistModel, KeepsItsShapeWhileFilesComeAndGo)
{
    FilelistModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.setFiles({file(QStringLiteral("a")), file(QStringLiteral("b")), file(QStringLiteral("c")),
                    file(QStringLiteral("d"))});
    model.insertFiles(1, {file(QStringLiteral("x")), file(QStringLiteral("y"))});
    EXPECT_EQ(names(model.files()), QStringLiteral("a x y b c d"));
    model.insertFiles(6, {file(QStringLiteral("z"))});
    EXPECT_EQ(names(model.removeFiles({6, 0, 2, 1})), QStringLiteral("a x y z"));
    EXPECT_EQ(names(model.files()), QStringLiteral("b c d"));
    EXPECT_EQ(model.rowOf(model.fileAt(2)), 2);
    EXPECT_EQ(model.fileAt(3), nullptr);
    EXPECT_EQ(model.fileAt(-1), nullptr);
}

TEST(FilelistModel, FilesComeBackToTheirRows)
{
    std::vector<FilelistItemPtr> files;
    for (int i = 0; i < 100; ++i)
        files.push_back(file(QString::number(i)));
    for (const int step : {2, 30}) {
        FilelistModel model;
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
        model.setFiles(files);
        std::vector<int> rows;
        for (int row = 0; row < 100; ++row) {
            if (row % step < step / 2)
                rows.push_back(row);
        }
        const auto removed = model.removeFiles(rows);
        model.insertFilesAt(rows, removed);
        EXPECT_EQ(model.files(), files);
    }
    FilelistModel shorter;
    shorter.setFiles({files[0]});
    shorter.insertFilesAt({0, 7}, {files[1], files[2]});
    EXPECT_EQ(names(shorter.files()), QStringLiteral("1 0 2")) << "at the end of a list that is shorter now";
}

TEST(FilelistModel, TellsHowAFileStands)
{
    FilelistModel model;
    const auto waiting = file(QStringLiteral("w"));
    const auto failed = file(QStringLiteral("f"));
    failed->setIsDone(true);
    failed->setResult(failure(QStringLiteral("it is bad")));
    model.setFiles({waiting, failed});
    EXPECT_EQ(model.index(0).data(FilelistRow::StateRole).toInt(), FilelistRow::Unread);
    waiting->setIsWanted(true);
    EXPECT_EQ(model.index(0).data(FilelistRow::StateRole).toInt(), FilelistRow::Waiting);
    EXPECT_EQ(model.index(1).data(FilelistRow::StateRole).toInt(), FilelistRow::Failed);
    EXPECT_TRUE(model.index(1).data(Qt::ToolTipRole).toString().contains(QStringLiteral("it is bad")));
    EXPECT_TRUE(model.index(1).data(Qt::AccessibleTextRole).toString().contains(QStringLiteral("it is bad")));
    EXPECT_TRUE(model.index(0).data(Qt::AccessibleTextRole).toString().contains(QStringLiteral("waiting")));
    waiting->setIsInProcess(true);
    EXPECT_EQ(model.index(0).data(FilelistRow::StateRole).toInt(), FilelistRow::Reading);
    waiting->setResult(std::make_shared<const QuorvinData>(RecordContents()));
    waiting->setIsDone(true);
    EXPECT_EQ(model.index(0).data(FilelistRow::StateRole).toInt(), FilelistRow::Ready);
}

TEST(ExtTreeModel, IsATreeOfTwoColumns)
{
    ExtTreeModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    ExtTreeItems maker{ExtTreeItem::itemWithName(QStringLiteral("Lens"), QStringLiteral("50 mm"))};
    ExtTreeItems items = tree(QStringLiteral("File(a b) Audio1(c)"));
    items.push_back(ExtTreeItem::groupTreeWithName(
        QStringLiteral("Image"), {ExtTreeItem::groupTreeWithName(QStringLiteral("Maker"), maker)}));
    model.setContent(items);
    const QModelIndex image = model.index(2, 0);
    const QModelIndex lens = model.index(0, 1, model.index(0, 0, image));
    EXPECT_EQ(lens.data().toString(), QStringLiteral("50 mm"));
    EXPECT_EQ(lens.parent().parent(), image);
    EXPECT_EQ(model.rowCount(model.index(0, 0)), 2);
    EXPECT_EQ(model.rowCount(model.index(0, 1)), 0) << "only the first column has children";
    model.setContent({});
    EXPECT_EQ(model.rowCount(), 0);
    const auto alignment = [&](int section) {
        return model.headerData(section, Qt::Horizontal, Qt::TextAlignmentRole).value<Qt::Alignment>();
    };
    model.setNamesAlignment(Qt::AlignTrailing);
    EXPECT_TRUE(alignment(ExtTreeModel::Name).testFlag(Qt::AlignTrailing)) << "as the names";
    EXPECT_FALSE(alignment(ExtTreeModel::Value).testFlag(Qt::AlignTrailing));
}

TEST(ExtendedOutline, RemembersClosedGroupsFromFileToFile)
{
    ExtendedOutline outline;
    outline.setContent(tree(QStringLiteral("File(a) Video(b) Audio1(c) Audio2(d)")));
    EXPECT_EQ(openGroups(outline), QStringLiteral("File Video Audio1 Audio2"));
    outline.collapse(outline.content().index(1, 0));
    outline.collapse(outline.content().index(3, 0));
    outline.setContent(tree(QStringLiteral("File(a) Video(x) Audio1(y) Audio2(z) Menu(m)")));
    EXPECT_EQ(openGroups(outline), QStringLiteral("File Audio1 Menu"));
    outline.expand(outline.content().index(1, 0));
    outline.setContent(tree(QStringLiteral("Video(x) Audio2(y)")));
    EXPECT_EQ(openGroups(outline), QStringLiteral("Video"));
}

TEST(ExtendedOutline, ControlClickOpensOrClosesAll)
{
    ExtendedOutline outline;
    outline.resize(400, 400);
    outline.setContent(tree(QStringLiteral("File(a) Video(b) Audio1(c)")));
    outline.show();
    controlClick(outline, 1);
    EXPECT_EQ(openGroups(outline), QString());
    outline.expand(outline.content().index(1, 0));
    outline.setContent(tree(QStringLiteral("File(a) Video(b) Audio1(c) Menu(d)")));
    EXPECT_EQ(openGroups(outline), QStringLiteral("Video")) << "it is the exception now";
    controlClick(outline, 0);
    EXPECT_EQ(openGroups(outline), QStringLiteral("File Video Audio1 Menu"));
    outline.setContent(tree(QStringLiteral("File(a) Other(b)")));
    EXPECT_EQ(openGroups(outline), QStringLiteral("File Other"));
}

TEST(ExtendedOutline, CopiesTextAndHtml)
{
    ExtendedOutline outline;
    ExtTreeItems items = tree(QStringLiteral("File(a)"));
    items.push_back(ExtTreeItem::itemWithName(QStringLiteral("A & B"), QStringLiteral("<1>\n2")));
    outline.setContent(items);
    const QModelIndex group = outline.content().index(0, 0);
    const auto copied = mimeDataOf(
        outline.content(), {group, outline.content().index(0, 0, group), outline.content().index(1, 0)});
    EXPECT_EQ(copied->text(), QStringLiteral("File\na: A\nA & B: <1>\n2"));
    EXPECT_EQ(copied->html(),
              QStringLiteral("<table cellspacing=0><tr><td><b>File</b></td><td></td></tr>\n"
                             "<tr><td>a</td><td>A</td></tr>\n"
                             "<tr><td>A &amp; B</td><td>&lt;1&gt;<br />2</td></tr></table>"));
}

TEST(ExtendedOutline, ShowsTheGroupOfAStream)
{
    ExtendedOutline outline;
    outline.setContent(tree(QStringLiteral("File(a) Audio1(b) Video(c) Audio2(d)")));
    outline.showGroup(QStringLiteral("Audio"), 1);
    EXPECT_EQ(outline.currentIndex().data().toString(), QStringLiteral("Audio2"));
    outline.showGroup(QStringLiteral("Audio"), 2);
    EXPECT_EQ(outline.currentIndex().data().toString(), QStringLiteral("Audio2")) << "there is no third";
}

TEST(ExtendedOutline, MeasuresTheRowsThatAreSeen)
{
    ExtendedOutline outline;
    outline.resize(500, 400);
    // Narrow letters: what is guessed from their count is too high.
    const QString text = QStringLiteral("illi ").repeated(50);
    ExtTreeItems items;
    for (int i = 0; i < 1'000; ++i)
        items.push_back(ExtTreeItem::itemWithName(QStringLiteral("name"), text));
    outline.setContent(items);
    outline.show();
    const auto height = [&](int row) {
        for (int i = 0; i < 5; ++i)
            QApplication::processEvents();
        return outline.visualRect(outline.content().index(row, 0)).height();
    };
    const int measured = height(0);
    EXPECT_GT(measured, 30);
    EXPECT_GT(height(900), measured) << "nobody has seen it";
    outline.scrollTo(outline.content().index(900, 0), QAbstractItemView::PositionAtTop);
    EXPECT_EQ(height(900), measured);
    outline.resize(700, 400);
    EXPECT_LT(height(0), measured);
    outline.resize(500, 400);
    EXPECT_EQ(height(900), measured) << "it is known for that width";
    items.front() = ExtTreeItem::itemWithName(QStringLiteral("name"), text.left(100));
    outline.setContent(items);
    EXPECT_LT(height(0), measured) << "another file, other heights";
}

TEST(ExtendedOutline, RowsAreAsHighAsTheirWrappedText)
{
    ExtendedOutline outline;
    outline.resize(500, 400);
    const QString longText = QStringLiteral("word ").repeated(200);
    outline.setContent({ExtTreeItem::itemWithName(QStringLiteral("short"), QStringLiteral("1")),
                        ExtTreeItem::itemWithName(QStringLiteral("long"), longText)});
    outline.setRowHeight(20);
    outline.show();
    const auto height = [&](int row) {
        QApplication::processEvents();
        return outline.visualRect(outline.content().index(row, 0)).height();
    };
    EXPECT_EQ(height(0), 20);
    const int wrapped = height(1);
    EXPECT_GT(wrapped, 60);
    outline.resize(900, 400);
    EXPECT_LT(height(1), wrapped) << "more room, fewer lines";
    outline.setWrapLongLines(false);
    EXPECT_EQ(height(1), 20);
}

} // namespace quorvin

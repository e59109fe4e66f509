// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/InfoView.h"

#include "shell/commands/CommandSet.h"
#include "shell/info/EmptyPane.h"
#include "shell/info/GeneralPane.h"
#include "shell/outline/ExtendedOutline.h"
#include "shell/session/LiveSettings.h"

#include <QApplication>
#include <QClipboard>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace quorvin {

namespace {

/// The sizes in the settings are those of a text of twelve points beside a row of sixteen; the desktop's own
/// text size is taken for that.
constexpr double kUsualFontSize = 12.0;
constexpr double kUsualRowHeight = 16.0;

constexpr std::array kFollowed{Setting::extFontSize, Setting::extRowHeight, Setting::wrapLongLines,
                               Setting::extParameterRightAlign};

} // namespace

InfoView::InfoView(const LiveSettings &settings, QWidget *parent)
    : QWidget(parent),
      _settings(settings),
      _pages(new QStackedWidget),
      _noFile(new EmptyPane(QStringLiteral("drop-files"))),
      _general(new GeneralPane),
      _outline(new ExtendedOutline),
      _failure(new EmptyPane(QStringLiteral("dialog-warning"))),
      _comparison(new EmptyPane(QStringLiteral("view-columns"))),
      _custom(new EmptyPane(QStringLiteral("view-report"))),
      _progress(new QProgressBar(this))
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(_pages);
    for (QWidget *page :
         std::initializer_list<QWidget *>{_noFile, _general, _outline, _failure, _comparison, _custom})
        _pages->addWidget(page);
    _noFile->setTexts(tr("Drop files or folders here"),
                      tr("or press Ctrl+O for files, Ctrl+Shift+O for a folder"));
    _comparison->setTexts(tr("Nothing to compare"),
                          tr("The files of the list stand side by side here, once they can be compared."));
    _custom->setTexts(tr("No report"), tr("The reports of the libraries themselves stand here."));
    _progress->setRange(0, 0);
    _progress->setTextVisible(false);
    _progress->setFixedSize(180, 8);
    _progress->setAccessibleName(tr("Reading the file"));
    _progress->hide();
    connectPanes();
    connect(&settings, &LiveSettings::changed, this, [this](Setting setting) {
        if (std::ranges::find(kFollowed, setting) != kFollowed.end())
            applySettings();
    });
    applySettings();
    showPage();
}

void InfoView::connectPanes()
{
    connect(_noFile->addButton(tr("Open…"), EmptyPane::OverHint), &QPushButton::clicked, this,
            &InfoView::openWanted);
    connect(_failure->addButton(tr("&Try Again"), EmptyPane::UnderHint), &QPushButton::clicked, this,
            &InfoView::retryWanted);
    connect(_general, &GeneralPane::selectionDidChange, this, &InfoView::selectionDidChange);
    connect(_outline, &ExtendedOutline::selectionDidChange, this, &InfoView::selectionDidChange);
    connect(_outline, &ExtendedOutline::menuWanted, this, &InfoView::menuWanted);
    connect(_general, &GeneralPane::streamActivated, this, [this](const QString &key, quint64 streamIndex) {
        Q_EMIT tabWanted(Tab::Extended);
        _outline->showGroup(key, streamIndex);
        _outline->setFocus();
    });
}

void InfoView::setCurrentTab(Tab tab)
{
    _tab = tab;
    showPage();
}

void InfoView::showPage()
{
    QWidget *page = _noFile;
    if (_tab == Tab::Comparison && _hasFile)
        page = _comparison;
    else if (_tab == Tab::Custom && _hasFile)
        page = _custom;
    else if (_hasFailed)
        page = _failure;
    else if (_tab == Tab::Extended && _hasFile)
        page = _outline;
    else if (_hasFile)
        page = _general;
    if (page == _outline)
        fillOutline();
    _pages->setCurrentWidget(page);
}

void InfoView::fillOutline()
{
    if (_outlineIsFilled)
        return;
    _outlineIsFilled = true;
    _outline->setContent(_record ? _record->extendedContent() : ExtTreeItems());
}

void InfoView::showNoFile()
{
    clear();
    _hasFile = false;
    showPage();
}

void InfoView::clear()
{
    _hasFile = true;
    _hasFailed = false;
    _record = nullptr;
    _outlineIsFilled = false;
    _general->clear();
    showPage();
}

void InfoView::showRecord(const QuorvinDataPtr &record)
{
    clear();
    _record = record;
    _outlineIsFilled = false;
    _general->showRecord(*record);
    showPage();
}

void InfoView::showFailure(const QString &reason)
{
    clear();
    _hasFailed = true;
    _failure->setTexts(tr("Can not process the file"), reason);
    showPage();
}

void InfoView::startWorking()
{
    _progress->move((width() - _progress->width()) / 2, height() / 2);
    _progress->show();
    _progress->raise();
}

void InfoView::stopWorking()
{
    _progress->hide();
}

void InfoView::applySettings()
{
    QFont treeFont = QApplication::font();
    const double scale = _settings.integer(Setting::extFontSize) / kUsualFontSize;
    treeFont.setPointSizeF(std::max(treeFont.pointSizeF() * scale, 4.0));
    _outline->setFont(treeFont);
    _general->setTreeFont(treeFont);
    const double rows = _settings.integer(Setting::extRowHeight) / kUsualRowHeight;
    _outline->setRowHeight(static_cast<int>((QFontMetrics(QApplication::font()).height() + 4) * rows));
    const bool wraps = _settings.boolean(Setting::wrapLongLines);
    _outline->setWrapLongLines(wraps);
    _general->setWrapLongLines(wraps);
    _outline->setRightAlignsParameters(_settings.boolean(Setting::extParameterRightAlign));
}

void InfoView::registerAt(CommandSet &commands)
{
    commands.on(Command::selectAll, [this] { _outline->selectAll(); });
    commands.on(Command::expandAll, [this] { _outline->expandAllIn(); });
    commands.on(Command::collapseAll, [this] { _outline->collapseAllIn(); });
}

bool InfoView::canCopy() const
{
    if (_outline->hasFocus())
        return _outline->canCopy();
    return _general->streams()->hasFocus() && !_general->selectedText().isEmpty();
}

void InfoView::copy() const
{
    if (_outline->hasFocus())
        _outline->copy();
    else
        QApplication::clipboard()->setText(_general->selectedText());
}

void InfoView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    _progress->move((width() - _progress->width()) / 2, height() / 2);
}

} // namespace quorvin

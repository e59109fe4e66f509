// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/InfoView.h"

#include "filefacts/Sizes.h"
#include "intake/AnalysisOptions.h"
#include "intake/FileSum.h"
#include "shell/commands/CommandSet.h"
#include "shell/compare/ComparisonView.h"
#include "shell/desktop/Counts.h"
#include "shell/info/ComparisonPane.h"
#include "shell/info/CustomPane.h"
#include "shell/info/EmptyPane.h"
#include "shell/info/ExtendedPane.h"
#include "shell/info/FailureAdvice.h"
#include "shell/info/FailurePane.h"
#include "shell/info/GeneralPane.h"
#include "shell/info/GeneralSheet.h"
#include "shell/info/RawReportDialog.h"
#include "shell/outline/ExtendedOutline.h"
#include "shell/session/LiveSettings.h"

#include <QApplication>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace quorvin {

namespace {

/// The sizes in the settings are those of a text of twelve points beside a row of sixteen; the desktop's own
/// text size is taken for that.
constexpr int kUsualFontSize = 12;
constexpr double kUsualRowHeight = 16.0;
constexpr int kRowAir = 6; ///< device-independent pixels above and below the text of a row together

constexpr std::array kFollowed{Setting::extFontSize,     Setting::extRowHeight,
                               Setting::wrapLongLines,   Setting::extParameterRightAlign,
                               Setting::firstColumnBold, Setting::extNamesWidth};

/// Takes the room that the window gives it, and asks no page what it would like: to lay out those that nobody
/// sees takes as long as to show the one that is seen.
class PageStack final : public QStackedWidget {
public:
    bool hasHeightForWidth() const override { return false; }
    QSize sizeHint() const override { return minimumSizeHint(); }
    QSize minimumSizeHint() const override { return {0, 0}; }
};

} // namespace

InfoView::InfoView(LiveSettings &settings, QWidget *parent)
    : QWidget(parent),
      _settings(settings),
      _pages(new PageStack),
      _noFile(new EmptyPane(QStringLiteral("drop-files"))),
      _walk(new EmptyPane(QStringLiteral("drop-files"))),
      _nothingPasses(new EmptyPane(QStringLiteral("edit-find"))),
      _failure(new FailurePane),
      _waiting(new EmptyPane(QStringLiteral("icon-dashedbox"))),
      _general(new GeneralPane),
      _extended(new ExtendedPane(settings)),
      _comparison(new ComparisonPane(settings)),
      _custom(new CustomPane(settings)),
      _panes{_noFile, _walk, _nothingPasses, _failure, _waiting, _general, _extended, _comparison, _custom},
      _skip(_waiting->addButton(tr("&Skip"), EmptyPane::UnderHint))
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(_pages);
    for (Pane *pane : _panes)
        _pages->addWidget(pane);
    _noFile->setTexts(
        tr("Drop files or folders here"),
        tr("Ctrl+O opens files, Ctrl+Shift+O a folder\nWith Shift, what is dropped replaces the list"));
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
    connect(_walk->addButton(tr("&Cancel"), EmptyPane::UnderHint), &QPushButton::clicked, this,
            &InfoView::cancelWalkWanted);
    connect(_nothingPasses->addButton(tr("Show &All Files"), EmptyPane::UnderHint), &QPushButton::clicked,
            this, &InfoView::showAllWanted);
    connect(_failure, &FailurePane::retryWanted, this, &InfoView::retryWanted);
    connect(_failure, &FailurePane::preferencesWanted, this, &InfoView::preferencesWanted);
    connect(_failure, &FailurePane::reportWanted, this, &InfoView::showReport);
    connect(_skip, &QPushButton::clicked, this, &InfoView::skipWanted);
    connect(&_comparison->view(), &ComparisonView::preferencesWanted, this, &InfoView::preferencesWanted);
    for (const Pane *pane : _panes) {
        connect(pane, &Pane::selectionDidChange, this, &InfoView::selectionDidChange);
        connect(pane, &Pane::menuWanted, this, &InfoView::menuWanted);
    }
    connect(&_extended->outline(), &ExtendedOutline::namesWidthChosen, this,
            [this](int width) { _settings.set(Setting::extNamesWidth, width); });
    connect(_general, &GeneralPane::coverOpened, this, &InfoView::coverOpened);
    connect(_general, &GeneralPane::locationActivated, this, &InfoView::locationOpened);
    connect(_general, &GeneralPane::stripWanted, this, &InfoView::stripWanted);
    connect(_general, &GeneralPane::streamActivated, this, [this](const QString &key, quint64 streamIndex) {
        Q_EMIT tabWanted(Tab::Extended);
        _extended->showGroup(key, streamIndex);
    });
}

void InfoView::setCurrentTab(Tab tab)
{
    _tab = tab;
    showPage();
}

Pane *InfoView::wantedPane() const
{
    if (!_hasFile && _isAllHidden)
        return _nothingPasses;
    if (!_hasFile)
        return _isWalking ? _walk : _noFile;
    if (_tab == Tab::Comparison)
        return _comparison;
    if (_tab == Tab::Custom)
        return _custom;
    if (_sum && _tab == Tab::General)
        return _general;
    if (_isWaiting || _isUnread)
        return _waiting;
    if (_hasFailed)
        return _failure;
    return _tab == Tab::Extended ? static_cast<Pane *>(_extended) : _general;
}

void InfoView::showPage()
{
    Pane *wanted = wantedPane();
    for (Pane *pane : _panes)
        pane->setCurrent(pane == wanted);
    _pages->setCurrentWidget(wanted);
}

void InfoView::showNoFile()
{
    clear();
    _hasFile = false;
    _isAllHidden = false;
    showPage();
}

void InfoView::showNothingPasses(const QStringList &filters, bool isReading)
{
    clear();
    _hasFile = false;
    _isAllHidden = true;
    const QString hint = filters.join(u'\n');
    _nothingPasses->setTexts(filters.size() == 1 ? tr("No file passes the filter")
                                                 : tr("No file passes all filters"),
                             isReading ? tr("%1\n\nFiles appear as they are read.").arg(hint) : hint);
    showPage();
}

void InfoView::showReport()
{
    (new RawReportDialog(_settings.values(), _path, window()))->open();
}

void InfoView::setPath(const QString &path)
{
    _path = path;
    _custom->setPath(path);
}

void InfoView::clear()
{
    _hasFile = true;
    _hasFailed = false;
    _isUnread = false;
    setPath({});
    for (Pane *pane : _panes)
        pane->clear();
    showPage();
}

void InfoView::showRecord(const QuorvinDataPtr &record)
{
    _hasFile = true;
    _hasFailed = false;
    _isUnread = false;
    setPath(record->filename());
    for (Pane *pane : _panes)
        pane->showRecord(record);
    showPage();
}

void InfoView::showFailure(const QString &path, const Error &error)
{
    clear();
    _hasFailed = true;
    setPath(path);
    _failure->setFailure(path, adviceOn(error, analysisSetupFrom(_settings.values(), nullptr).limits));
    showPage();
}

void InfoView::showSum(const std::shared_ptr<const FileSum> &sum)
{
    _sum = sum;
    _general->setSum(sum ? std::optional(sheetOf(*sum, _settings.boolean(Setting::useSIUnits)))
                         : std::nullopt);
    showPage();
}

void InfoView::showWalk(int found)
{
    _isWalking = true;
    _walk->setTexts(tr("Looking for files: %1").arg(groupedCount(found)), {});
    showPage();
}

void InfoView::stopWalk()
{
    _isWalking = false;
    showPage();
}

void InfoView::showUnread()
{
    clear();
    _isUnread = true;
    _waiting->setTexts(tr("Not read"), tr("Reading was stopped; F5 goes on."));
    _skip->hide();
    showPage();
}

void InfoView::showWait(const QString &name, std::optional<int> seconds,
                        const std::optional<DigestProgress> &digests)
{
    const auto sizeText = _settings.boolean(Setting::useSIUnits) ? Utilities::filesizeToMacHumanString
                                                                 : Utilities::filesizeToBase2HumanString;
    QStringList hints;
    if (digests)
        hints.append(tr("Computing digests: %1 of %2")
                         .arg(sizeText(static_cast<qint64>(digests->done)),
                              sizeText(static_cast<qint64>(digests->total))));
    if (seconds)
        hints.append(tr("%1 s").arg(*seconds));
    _waiting->setTexts(tr("Reading %1…").arg(name), hints.join(QStringLiteral(", ")));
    _skip->setVisible(seconds.has_value());
    _isWaiting = true;
    showPage();
}

void InfoView::stopWaiting()
{
    _isWaiting = false;
    showPage();
}

void InfoView::applySettings()
{
    const QFont usual = QApplication::font();
    RowLook look;
    look.font = usual;
    const double scale = double(_settings.integer(Setting::extFontSize)) / kUsualFontSize;
    look.font.setPointSizeF(std::max(usual.pointSizeF() * scale, 4.0));
    const double rows = _settings.integer(Setting::extRowHeight) / kUsualRowHeight;
    look.height = static_cast<int>((QFontMetrics(look.font).height() + kRowAir) * rows);
    look.namesWidth = _settings.integer(Setting::extNamesWidth);
    look.wrapsLongLines = _settings.boolean(Setting::wrapLongLines);
    look.rightAlignsParameters = _settings.boolean(Setting::extParameterRightAlign);
    look.hasHeavyNames = _settings.boolean(Setting::firstColumnBold);
    for (Pane *pane : _panes)
        pane->setLook(look);
}

void InfoView::zoom(int step)
{
    const int size = step == 0 ? kUsualFontSize : _settings.integer(Setting::extFontSize) + step;
    _settings.set(Setting::extFontSize, size);
}

ExtendedOutline &InfoView::outline()
{
    return _extended->outline();
}

ComparisonView &InfoView::comparison()
{
    return _comparison->view();
}

void InfoView::showParameter(const QString &section, quint32 stream, const QString &key)
{
    _extended->showParameter(section, stream, key);
}

void InfoView::registerAt(CommandSet &commands)
{
    commands.on(Command::copyValue, [this] { wantedPane()->copyValues(); });
    commands.on(Command::selectAll, [this] { wantedPane()->selectAll(); });
    commands.on(Command::showStream, [this] { wantedPane()->openCurrent(); });
    commands.on(Command::performExtFind, [this] { wantedPane()->find(); });
    commands.on(Command::findNext, [this] { findNext(false); });
    commands.on(Command::findPrevious, [this] { findNext(true); });
    commands.on(Command::zoomIn, [this] { zoom(1); });
    commands.on(Command::zoomOut, [this] { zoom(-1); });
    commands.on(Command::actualSize, [this] { zoom(0); });
    for (Pane *pane : _panes)
        pane->registerAt(commands);
}

/// Where nothing can be searched, and over a report that is not, the hits of Extended are walked.
void InfoView::findNext(bool backwards)
{
    CommandState state;
    wantedPane()->describe(state);
    if (state.canFind && (wantedPane() != _custom || _custom->isSearching()))
        return wantedPane()->findNext(backwards);
    Q_EMIT tabWanted(Tab::Extended);
    _extended->findNext(backwards);
}

void InfoView::describe(CommandState &state) const
{
    wantedPane()->describe(state);
}

bool InfoView::canCopy() const
{
    return wantedPane()->canCopy();
}

void InfoView::copy() const
{
    wantedPane()->copy();
}

} // namespace quorvin

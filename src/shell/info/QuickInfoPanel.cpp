// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/QuickInfoPanel.h"

#include "platform/NativePath.h"
#include "shell/desktop/PlainText.h"
#include "shell/info/ElidedLabel.h"
#include "shell/info/FactList.h"
#include "shell/info/GeneralSheet.h"
#include "shell/info/Pane.h"
#include "shell/info/QuickInfoStack.h"
#include "shell/info/QuickInfoView.h"
#include "shell/info/StreamTable.h"
#include "shell/outline/OutlineDelegate.h"
#include "shell/session/LiveSettings.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

constexpr QSize kFirstPanelSize(340, 480);
constexpr QSize kLeastPanelSize(240, 160);
constexpr QPoint kFromWindow(32, 96); ///< of its first place, from the upper outer corner
constexpr int kPanelMargin = 12;
constexpr int kMostOfWidth = 45; ///< per cent for names
/// As those of the other texts: the desktop's own size stands for these.
constexpr double kUsualPanelFontSize = 12;
constexpr double kUsualPanelRowHeight = 16;
constexpr int kPanelRowAir = 6;

std::vector<FactList::Fact> originOf(const QuorvinData &record)
{
    const GeneralFacts &general = record.generalInfo();
    std::vector<FactList::Fact> facts;
    const auto add = [&facts](const QString &label, const QString &value) {
        if (!value.isEmpty())
            facts.push_back({label, value});
    };
    add(QuickInfoPanel::tr("Folder"), shortFolder(withoutLastPathComponent(record.filename())));
    add(QuickInfoPanel::tr("Created"), general.localizedCreationDate);
    add(QuickInfoPanel::tr("Modified"), general.localizedModificationDate);
    add(QuickInfoPanel::tr("Tags"), general.fileTagNames.value_or(QString()));
    add(QuickInfoPanel::tr("Comment"), general.finderComment.value_or(QString()));
    add(QuickInfoPanel::tr("Authors"), general.fileAuthors.value_or(QString()));
    add(QuickInfoPanel::tr("From"), general.fileFrom.value_or(QString()));
    return facts;
}

} // namespace

QuickInfoPanel::QuickInfoPanel(LiveSettings &settings, QWidget *window)
    : QWidget(window, Qt::Tool),
      _settings(settings),
      _name(new ElidedLabel(Qt::ElideMiddle)),
      _note(plainLabel()),
      _general(new FactList),
      _streams(new StreamTable),
      _origin(new FactList),
      _stack(new QuickInfoStack),
      _scroll(new QScrollArea),
      _sections{{{"general", new QuickInfoView(tr("General"), _general)},
                 {"streams", new QuickInfoView(tr("Streams"), _streams)},
                 {"file", new QuickInfoView(tr("File"), _origin)}}}
{
    setWindowTitle(tr("Quick Info"));
    setAttribute(Qt::WA_QuitOnClose, false);
    layOut();
    const QStringList closed = settings.string(Setting::quickInfoClosed).split(u',');
    for (const Section &section : _sections) {
        _stack->addPanel(section.view);
        section.view->setOpen(!closed.contains(QLatin1String(section.key)));
        connect(section.view, &QuickInfoView::toggled, this, &QuickInfoPanel::rememberSections);
    }
    connect(_streams, &StreamTable::selectionDidChange, this, &QuickInfoPanel::stateDidChange);
    connect(&settings, &LiveSettings::changed, this, [this](Setting setting) {
        if (setting == Setting::quickViewFontSize || setting == Setting::quickViewRowHeight)
            applySettings();
    });
    applySettings();
}

void QuickInfoPanel::layOut()
{
    setMinimumSize(kLeastPanelSize);
    _note->setForegroundRole(QPalette::PlaceholderText);
    _note->setWordWrap(true);
    _scroll->setFrameShape(QFrame::NoFrame);
    _scroll->setWidgetResizable(true);
    _scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    _scroll->setFocusPolicy(Qt::NoFocus);
    _scroll->setBackgroundRole(QPalette::Base);
    _stack->setBackgroundRole(QPalette::Base);
    _stack->setAutoFillBackground(true);
    _scroll->setWidget(_stack);
    _scroll->installEventFilter(this);
    auto *head = new QVBoxLayout;
    head->setContentsMargins(kPanelMargin, kPanelMargin, kPanelMargin, kPanelMargin);
    head->addWidget(_name);
    head->addWidget(_note);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(head);
    column->addWidget(_scroll, 1);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
}

void QuickInfoPanel::applySettings()
{
    const QFont usual = QApplication::font();
    RowLook look;
    look.font = usual;
    look.font.setPointSizeF(usual.pointSizeF() * _settings.integer(Setting::quickViewFontSize)
                            / kUsualPanelFontSize);
    const QFontMetrics metrics(look.font);
    look.height = static_cast<int>((metrics.height() + kPanelRowAir)
                                   * _settings.integer(Setting::quickViewRowHeight) / kUsualPanelRowHeight);
    setFont(look.font);
    _name->setFont(look.headlineFont());
    _streams->setLook(look);
    int widest = 0;
    for (const QString &label : factLabels() + QStringList(QStringLiteral("Subtitles #10")))
        widest = std::max(widest, metrics.horizontalAdvance(label));
    const int names = std::min(widest + kPanelMargin, kFirstPanelSize.width() * kMostOfWidth / 100);
    for (FactList *facts : {_general, _origin}) {
        facts->setLabelsWidth(names);
        facts->setGap(2 * OutlineDelegate::kMargin);
    }
    _streams->setNamesWidth(names + OutlineDelegate::kMargin);
}

void QuickInfoPanel::setSectionsShown(bool areShown)
{
    for (const Section &section : _sections)
        section.view->setVisible(areShown && (section.view != _sections[1].view || !_streams->isEmpty()));
    _stack->place();
}

void QuickInfoPanel::showRecord(const QuorvinData &record)
{
    const GeneralSheet sheet = sheetOf(record);
    _name->setWholeText(sheet.headline);
    _note->hide();
    _general->setFacts(sheet.facts);
    _streams->setLines(sheet.lines);
    _origin->setFacts(originOf(record));
    _sections[1].view->setTitle(record.isImage() ? tr("Photo") : tr("Streams"));
    setSectionsShown(true);
}

void QuickInfoPanel::showNote(const QString &name, const QString &note)
{
    _name->setWholeText(name);
    _note->setText(note);
    _note->setVisible(!note.isEmpty());
    setSectionsShown(false);
}

bool QuickInfoPanel::canCopy() const
{
    return _streams->canCopy() || _general->canCopy() || _origin->canCopy();
}

void QuickInfoPanel::copy() const
{
    if (_streams->canCopy())
        _streams->copy();
    for (const FactList *facts : {_general, _origin}) {
        if (facts->canCopy())
            facts->copy();
    }
}

void QuickInfoPanel::rememberSections()
{
    QStringList closed;
    for (const Section &section : _sections) {
        if (!section.view->isOpen())
            closed.append(QLatin1String(section.key));
    }
    _settings.set(Setting::quickInfoClosed, closed.join(u','));
}

void QuickInfoPanel::restoreFrame()
{
    const QByteArray frame = QByteArray::fromBase64(_settings.string(Setting::quickInfoFrame).toLatin1());
    if (!frame.isEmpty() && restoreGeometry(frame))
        return;
    const QRect room = parentWidget()->screen()->availableGeometry();
    const QRect window = parentWidget()->window()->frameGeometry();
    QRect place(QPoint(), kFirstPanelSize.boundedTo(room.size()));
    if (isRightToLeft())
        place.moveTopLeft(window.topLeft() + kFromWindow);
    else
        place.moveTopRight(window.topRight() + QPoint(-kFromWindow.x(), kFromWindow.y()));
    place.moveLeft(std::clamp(place.left(), room.left(), room.right() + 1 - place.width()));
    place.moveTop(std::clamp(place.top(), room.top(), room.bottom() + 1 - place.height()));
    resize(place.size());
    move(place.topLeft());
}

bool QuickInfoPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != _scroll || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    event->ignore();
    return true;
}

void QuickInfoPanel::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        close();
        break;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
        Q_EMIT walkKeyPressed(event);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void QuickInfoPanel::showEvent(QShowEvent *event)
{
    if (!event->spontaneous() && !std::exchange(_wasPlaced, true))
        restoreFrame();
    QWidget::showEvent(event);
    Q_EMIT stateDidChange();
}

void QuickInfoPanel::hideEvent(QHideEvent *event)
{
    if (!event->spontaneous())
        _settings.set(Setting::quickInfoFrame, QString::fromLatin1(saveGeometry().toBase64()));
    QWidget::hideEvent(event);
    Q_EMIT stateDidChange();
}

} // namespace quorvin

// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/DiagnosticsCommands.h"

#include "platform/NativePath.h"
#include "shell/commands/CommandSet.h"
#include "shell/info/CustomPane.h"
#include "shell/info/InfoView.h"
#include "shell/info/RawReports.h"
#include "shell/session/FileDialogs.h"
#include "shell/session/LiveSettings.h"
#include "shell/window/MainView.h"
#include "shell/window/MainWindowController.h"
#include "shell/window/SidebarSplitView.h"
#include "shell/window/StatusLine.h"

#include <QAction>
#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QMenu>

#include <array>

namespace quorvin {

/// What one command copies.
struct CopiedReport {
    Command command;
    const char *source;
    const char *whenNothing; ///< is copied in place of a report
    bool beginsWithPath = false; ///< the report does, and so does what is copied in its place
};

namespace {

constexpr const char *kNoOutput = "no output";
constexpr const char *kNoOutputInBrackets = "<No output>";

constexpr std::array kCopiedReports{
    CopiedReport{Command::copyMediaInfoOutput, "mediainfo-complete", kNoOutput},
    CopiedReport{Command::copyMediaInfoTraceOutput, "mediainfo-trace", kNoOutput},
    CopiedReport{Command::copyExiv2Output, "exiv2", kNoOutput},
    CopiedReport{Command::copyExiv2Structure, "exiv2-structure", kNoOutput},
    CopiedReport{Command::copyExiv2Xmp, "xmp-arranged", kNoOutput},
    CopiedReport{Command::copyExiftoolOutput, "exiftool", kNoOutputInBrackets},
    CopiedReport{Command::copyImageio, "system-image", kNoOutputInBrackets, true},
    CopiedReport{Command::mp4Metadata, "iso-metadata", kNoOutputInBrackets},
};
constexpr CopiedReport kExiv2OfAnyFile{Command::testExiv2, "exiv2", kNoOutput};
constexpr CopiedReport kParameters{Command::copyLibParametersCSV, "parameters", ""};

struct ShownReport {
    Command command;
    const char *source;
};

constexpr std::array kShownReports{
    ShownReport{Command::customWithMediaInfo, "mediainfo"},
    ShownReport{Command::customWithMediaInfoComplete, "mediainfo-complete"},
    ShownReport{Command::customWithExiftool, "exiftool"},
    ShownReport{Command::customWithRawXmp, "xmp-arranged"},
};

} // namespace

DiagnosticsCommands::DiagnosticsCommands(LiveSettings &settings, MainWindowController &window)
    : QObject(&window), _settings(settings), _window(window)
{
    registerCommands();
    followSetting();
    connect(&settings, &LiveSettings::changed, this, [this](Setting setting) {
        if (setting == Setting::enableDebug)
            followSetting();
    });
    _window.myView().statusLine().follow(_run,
                                         {tr("Stop; nothing is copied"),
                                          [](int, int) { return tr("Asking for a report"); },
                                          [this] { _run.cancel(); }});
    connect(&window, &MainWindowController::closed, this, [this] {
        _run.cancel();
        _saving.cancel();
    });
}

void DiagnosticsCommands::followSetting()
{
    _window.commands()
        .menu(CommandMenu::Diagnostics)
        ->menuAction()
        ->setVisible(_settings.boolean(Setting::enableDebug));
}

void DiagnosticsCommands::registerCommands()
{
    CommandSet &commands = _window.commands();
    for (const CopiedReport &report : kCopiedReports) {
        commands.on(report.command, [this, &report] {
            if (const auto path = _window.worker().currentFilePath())
                copyReport(report, *path);
        });
    }
    for (const ShownReport &report : kShownReports)
        commands.on(report.command, [this, &report] { showReport(QLatin1String(report.source)); });
    commands.on(Command::testExiv2, [this] { chooseForExiv2(); });
    commands.on(Command::copyLibParametersCSV, [this] { copyReport(kParameters, {}); });
    commands.on(Command::copyLibParametersCSV2, [this] { saveParameters(); });
    commands.on(Command::exchangeViews, [this] { exchangeViews(); });
}

void DiagnosticsCommands::copyReport(const CopiedReport &report, const QString &path)
{
    _run.start("Diagnostics", reportWork(_settings.values(), path, QLatin1String(report.source)),
               [this, &report, path](const Expected<QString> &text) { take(report, path, text); });
}

void DiagnosticsCommands::take(const CopiedReport &kind, const QString &path, const Expected<QString> &report)
{
    QString nothing = QLatin1String(kind.whenNothing);
    if (kind.beginsWithPath)
        nothing.prepend(path + u' ');
    const bool isThere = report && !report->isEmpty();
    QGuiApplication::clipboard()->setText(isThere ? *report : nothing);
    const QString name = lastPathComponent(path);
    if (!report)
        say(tr("No report on “%1”: %2").arg(name, report.error().description));
    else if (path.isEmpty())
        say(tr("Copied the parameters"));
    else
        say(isThere ? tr("Copied the report on “%1”").arg(name) : tr("Nothing is told of “%1”").arg(name));
}

void DiagnosticsCommands::showReport(const QString &source)
{
    _window.myView().info().custom().showReport(source);
    _window.setCurrentTab(Tab::Custom);
}

void DiagnosticsCommands::chooseForExiv2()
{
    QFileDialog *dialog = makeFileDialog(&_window, tr("Report of exiv2"), _settings);
    dialog->setFileMode(QFileDialog::ExistingFile);
    connect(dialog, &QFileDialog::fileSelected, this,
            [this](const QString &path) { copyReport(kExiv2OfAnyFile, path); });
    dialog->open();
}

void DiagnosticsCommands::saveParameters()
{
    QFileDialog *dialog = makeFileDialog(&_window, tr("Save Parameters"), _settings);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->selectFile(QStringLiteral("MediaInfoParameters.plist"));
    connect(dialog, &QFileDialog::fileSelected, this, &DiagnosticsCommands::saveParametersTo);
    dialog->open();
}

void DiagnosticsCommands::saveParametersTo(const QString &path)
{
    _saving.start(
        "SaveParameters",
        [list = reportWork(_settings.values(), {}, QStringLiteral("parameters-plist")),
         path](const RunControl &control) {
            return list(control).and_then(
                [&](const QString &text) { return writeReport(text, path, control.stop()); });
        },
        [this, name = lastPathComponent(path)](const Expected<void> &saved) {
            say(saved ? tr("Saved “%1”").arg(name)
                      : tr("“%1” was not saved: %2").arg(name, saved.error().description));
        });
}

void DiagnosticsCommands::exchangeViews()
{
    SidebarSplitView &sidebar = _window.myView().sidebar();
    sidebar.setSidebarPosition(sidebar.sidebarPosition() == 1 ? 0 : 1);
}

void DiagnosticsCommands::say(const QString &text)
{
    _window.myView().statusLine().say(text);
}

} // namespace quorvin

// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/EndWithParent.h"
#include "platform/NativePath.h"
#include "process/PanelFrames.h"

#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <functional>
#include <map>

// Speaks the language of the preview panel over its socket and shows nothing, but obeys the name of the
// file: "hang", "crash" and so on. Of any other name it hands back a key press with the name as its text.

using namespace quorvin;

namespace {

void say(const QByteArray &bytes)
{
    if (::write(kPanelSocket, bytes.constData(), static_cast<std::size_t>(bytes.size())) < 0)
        std::_Exit(EXIT_FAILURE);
}

void report(const PanelReport &report)
{
    say(frameOf(report));
}

const std::map<QString, std::function<void()>> &panelFaults()
{
    static const std::map<QString, std::function<void()>> table{
        {QStringLiteral("crash"), [] { std::raise(SIGSEGV); }},
        {QStringLiteral("hang"), [] { ::pause(); }},
        {QStringLiteral("leaves"), [] { std::_Exit(EXIT_SUCCESS); }},
        {QStringLiteral("garbage"), [] { say("garbage"); }},
        {QStringLiteral("too much"), [] { report(PanelDone{1000}); }},
        {QStringLiteral("keeps"),
         [] {
             report(PanelKept{true, "frame"});
         }},
    };
    return table;
}

/// False at the end.
bool read(void *bytes, std::size_t length)
{
    return ::read(kPanelSocket, bytes, length) == static_cast<ssize_t>(length);
}

bool obeyNext()
{
    quint32 length = 0;
    if (!read(&length, sizeof length))
        return false;
    QByteArray content(static_cast<qsizetype>(length), Qt::Uninitialized);
    const auto order = read(content.data(), length) ? panelOrderOf(content) : std::nullopt;
    if (!order)
        return false;
    const quint32 number = std::visit([](const auto &kind) { return kind.number; }, *order);
    const auto *file = std::get_if<PanelFile>(&*order);
    const QString name = file ? lastPathComponent(file->path) : QString();
    if (name == QStringLiteral("slow"))
        ::usleep(300'000);
    const auto fault = panelFaults().find(name);
    if (fault != panelFaults().end())
        fault->second();
    report(PanelDone{number});
    if (name == QStringLiteral("closes"))
        report(PanelClosed{true});
    else if (file && fault == panelFaults().end())
        report(PanelKey{Qt::Key_A, 0, name, false});
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2)
        return EXIT_FAILURE;
    endWithParent(static_cast<pid_t>(std::strtol(argv[1], nullptr, 10)), kPanelSocket);
    while (obeyNext()) { }
    return EXIT_SUCCESS;
}

// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/preview/PreviewPanel.h"

#include "shell/session/LiveSettings.h"
#include "support/Events.h"
#include "support/TestFolder.h"

#include <QDir>

#include <gtest/gtest.h>

#include <csignal>
#include <memory>

namespace quorvin {

using test::spinUntil;

namespace {

using namespace Qt::StringLiterals;

/// A panel whose program does what the names of its files say.
struct PreviewPanels : testing::Test {
    Settings values{QString()};
    LiveSettings settings{values};
    QObject user;
    QStringList shown; ///< names, as the program hands them back
    QStringList failures;
    int closedByKey = 0;
    std::unique_ptr<PreviewPanel> panel = make(test::faultyPanelProgram());

    std::unique_ptr<PreviewPanel> make(const QString &program)
    {
        auto made = std::make_unique<PreviewPanel>(settings, program);
        QObject::connect(made.get(), &PreviewPanel::keyPressed, &user,
                         [this](const PanelKey &key) { shown.append(key.text); });
        QObject::connect(made.get(), &PreviewPanel::failed, &user,
                         [this](const QString &sentence) { failures.append(sentence); });
        QObject::connect(made.get(), &PreviewPanel::closedByKey, &user, [this] { ++closedByKey; });
        return made;
    }
    void open(const QString &name) { panel->open(&user, u"/films/"_s + name); }
    bool shows(const QString &name)
    {
        return spinUntil([&] { return shown.contains(name); });
    }
    /// What is said when the program shows the file.
    QString failure(const QString &name)
    {
        failures.clear();
        open(name);
        EXPECT_TRUE(spinUntil([this] { return !failures.isEmpty(); })) << qPrintable(name);
        EXPECT_FALSE(panel->isOpen());
        return failures.value(0);
    }
    bool isRunning() const { return panel->processId() > 0 && ::kill(pid_t(panel->processId()), 0) == 0; }
};

} // namespace

TEST_F(PreviewPanels, StayReadyWhileTheyAreClosed)
{
    open(u"one"_s);
    EXPECT_TRUE(panel->isOpen());
    ASSERT_TRUE(shows(u"one"_s));
    const qint64 first = panel->processId();
    panel->close();
    EXPECT_FALSE(panel->isOpen());
    panel->follow(&user, u"/films/two"_s);
    open(u"three"_s);
    ASSERT_TRUE(shows(u"three"_s));
    EXPECT_EQ(shown, QStringList({u"one"_s, u"three"_s})) << "nothing follows a closed one";
    EXPECT_EQ(panel->processId(), first);
    panel.reset();
    EXPECT_NE(::kill(pid_t(first), 0), 0) << "it ends with the panel";
}

TEST_F(PreviewPanels, LeaveOutWhatTheyAreTooLateFor)
{
    open(u"slow"_s);
    for (const auto *name : {u"a", u"b", u"c"})
        panel->follow(&user, u"/films/"_s + QString::fromUtf16(name));
    ASSERT_TRUE(shows(u"c"_s));
    EXPECT_FALSE(shown.contains(u"a"_s));
    EXPECT_FALSE(shown.contains(u"b"_s));
}

TEST_F(PreviewPanels, TellHowTheyEndAndStartAnew)
{
    EXPECT_TRUE(failure(u"crash"_s).contains(u"“crash” has crashed"_s));
    EXPECT_TRUE(failure(u"leaves"_s).contains(u"“leaves”"_s));
    EXPECT_TRUE(failure(u"garbage"_s).contains(u"“garbage”"_s));
    EXPECT_TRUE(failure(u"too much"_s).contains(u"“too much”"_s));
    panel->setPatience(std::chrono::milliseconds(500));
    EXPECT_TRUE(failure(u"hang"_s).contains(u"“hang” took too long"_s));
    panel->setPatience(PreviewPanel::kPatience);
    open(u"one"_s);
    EXPECT_TRUE(shows(u"one"_s));

    ::kill(pid_t(panel->processId()), SIGKILL);
    failures.clear();
    EXPECT_TRUE(spinUntil([this] { return !panel->isOpen(); }));
    EXPECT_EQ(failures.size(), 1);
    open(u"two"_s);
    ASSERT_TRUE(shows(u"two"_s));
    panel->close();
    ::kill(pid_t(panel->processId()), SIGKILL);
    EXPECT_TRUE(spinUntil([this] { return panel->processId() == 0; }));
    EXPECT_EQ(failures.size(), 1) << "nobody misses a hidden one";
    panel = make(u"/no/such/program"_s);
    EXPECT_TRUE(failure(u"one"_s).contains(u"/no/such/program"_s));
}

TEST_F(PreviewPanels, ReportWhatTheUserDoes)
{
    open(u"closes"_s);
    ASSERT_TRUE(spinUntil([this] { return !panel->isOpen(); }));
    EXPECT_EQ(closedByKey, 1);
    EXPECT_TRUE(failures.isEmpty());
    open(u"keeps"_s);
    ASSERT_TRUE(spinUntil([this] { return settings.boolean(Setting::previewMuted); }));
    EXPECT_EQ(QByteArray::fromBase64(settings.string(Setting::previewFrame).toLatin1()), "frame");
}

TEST_F(PreviewPanels, OutliveFilesThatAreCutOff)
{
    const test::TestFolder folder;
    panel = make({});
    for (const char *name : {"movie.mp4", "matroska.mkv", "tone.flac", "photo.jpg"}) {
        const QByteArray whole = test::contentOf(test::sample(QLatin1String(name)));
        for (const qsizetype kept :
             {qsizetype{40}, whole.size() / 10, whole.size() / 2, whole.size() - 100}) {
            panel->open(&user, folder.write(QString::number(kept) + QLatin1String(name), whole.first(kept)));
            ASSERT_TRUE(spinUntil([this] { return panel->isSettled() || !failures.isEmpty(); }));
        }
    }
    EXPECT_EQ(failures, QStringList());
    EXPECT_TRUE(isRunning());
}

} // namespace quorvin

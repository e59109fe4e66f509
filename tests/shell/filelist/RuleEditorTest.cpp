// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/RuleEditor.h"

#include "filter/RuleText.h"
#include "platform/Settings.h"
#include "shell/filelist/ConditionGroup.h"
#include "shell/filelist/ConditionRow.h"
#include "shell/session/LiveSettings.h"
#include "support/Events.h"
#include "support/TestFolder.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStringListModel>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include <algorithm>

namespace quorvin {

using namespace Qt::StringLiterals;
using test::spinUntil;

namespace {

/// The rule of that text, which is one.
Rule ruleOf(const QString &text)
{
    const auto rule = parseRule(text);
    EXPECT_TRUE(rule) << text.toStdString();
    return rule.value_or(Rule());
}

struct RuleEditing : testing::Test {
    test::TestFolder folder;
    Settings values{folder / u"settings.ini"_s};
    LiveSettings settings{values};
    RuleEditor editor{settings};
    QStringList told; ///< every rule, as text
    QLineEdit *text = named<QLineEdit>(u"Rule as text"_s);

    RuleEditing()
    {
        QObject::connect(&editor, &RuleEditor::ruleDidChange, &editor,
                         [this](const Rule &rule) { told.append(textOfRule(rule)); });
        editor.resize(600, 400);
        editor.show();
    }
    /// The last of that name that can be seen; null without one.
    template <typename Widget>
    Widget *named(const QString &name) const
    {
        // What was added to a layout is on the screen a moment later.
        QCoreApplication::processEvents();
        Widget *found = nullptr;
        for (Widget *widget : editor.findChildren<Widget *>()) {
            if (widget->accessibleName() == name && (widget->isVisible() || !editor.isVisible()))
                found = widget;
        }
        return found;
    }
    void press(const QString &button) const
    {
        for (QPushButton *one : editor.findChildren<QPushButton *>()) {
            if (one->text().remove(u'&') == button)
                one->click();
        }
    }
    static void choose(QComboBox *combo, const QString &choice)
    {
        ASSERT_GE(combo->findText(choice), 0) << choice.toStdString();
        combo->setCurrentIndex(combo->findText(choice));
    }
    bool awaitTold(const QString &rule) const
    {
        return spinUntil([&] { return !told.isEmpty() && told.last() == rule; });
    }
};

} // namespace

TEST(ConditionGroup, ShowsEveryRuleAndGivesItBack)
{
    QStringListModel names({u"Video/Width"_s});
    ConditionGroup group(names, ConditionGroup::Place::Outermost);
    for (const char *text :
         {"fileType = 'Video'", "fileType != 'Image' AND parameterName CONTAINS 'GPS'",
          "parameterValue = 'Canon' OR parameterValue != ''''", "[Video/Width] >= 1920 AND NOT failed",
          "[Video/Width] IN 100..400 OR [Audio/Language] = 'French'", "[General/Title] MATCHES '^a.*b$'",
          "NOT (fileType = 'Video' AND [Video/Width] < 10)", "[A/B] IS MISSING AND (private OR [C/D] != 5)",
          "NOT (failed OR NOT (fileType = 'Audio' OR [E/F] > 1/500))", "[A/B] = '1920'", "[A/B] = 1920"}) {
        const Rule rule = ruleOf(QLatin1String(text));
        group.setRule(rule);
        EXPECT_EQ(textOfRule(group.rule().simplified()), textOfRule(rule)) << text;
        EXPECT_EQ(group.rule().simplified(), rule) << text;
    }
    group.setRule({});
    EXPECT_TRUE(group.rule().isEmpty());
}

TEST_F(RuleEditing, TextAndConditionsAreOneRule)
{
    QTest::keyClicks(text, u"fileType = 'Video'"_s);
    EXPECT_EQ(told.last(), u"fileType = 'Video'"_s);
    QComboBox *type = named<QComboBox>(u"File type"_s);
    ASSERT_TRUE(type);
    choose(type, u"Audio"_s);
    ASSERT_TRUE(awaitTold(u"fileType = 'Audio'"_s));
    EXPECT_EQ(text->text(), u"fileType = 'Audio'"_s);

    named<QToolButton>(u"Add a condition"_s)->click();
    QCoreApplication::processEvents();
    QLineEdit *value = named<QLineEdit>(u"Value"_s);
    ASSERT_TRUE(value);
    QTest::keyClicks(value, u"pcm"_s);
    ASSERT_TRUE(awaitTold(u"fileType = 'Audio' AND parameterValue CONTAINS 'pcm'"_s));
    choose(named<QComboBox>(u"How many of the conditions have to hold"_s), u"None"_s);
    EXPECT_TRUE(awaitTold(u"NOT (fileType = 'Audio' OR parameterValue CONTAINS 'pcm')"_s));
    named<QToolButton>(u"Remove this condition"_s)->click();
    EXPECT_TRUE(awaitTold(u"NOT fileType = 'Audio'"_s)) << told.last().toStdString();
    press(u"Clear"_s);
    EXPECT_EQ(told.last(), QString());
}

TEST_F(RuleEditing, AMistakeStandsUnderItsPlaceAndChangesNothing)
{
    QTest::keyClicks(text, u"failed"_s);
    const auto count = told.size();
    QTest::keyClicks(text, u" AND colour"_s);
    EXPECT_EQ(told.size(), count);
    const auto labels = editor.findChildren<QLabel *>();
    EXPECT_TRUE(std::ranges::any_of(labels, [](const QLabel *label) {
        return label->isVisible() && label->text().contains(u"\n           ^"_s);
    }));
    editor.setRule(ruleOf(u"fileType = 'Image'"_s));
    EXPECT_EQ(text->text(), u"fileType = 'Image'"_s);
    EXPECT_EQ(told.size(), count) << "only what the user does is told";
}

TEST_F(RuleEditing, RulesAreKeptByName)
{
    QComboBox *saved = named<QComboBox>(u"Saved rules"_s);
    QTest::keyClicks(text, u"failed"_s);
    QTest::keyClicks(saved, u"Bad"_s);
    press(u"Save"_s);
    press(u"Clear"_s);
    RuleEditor later(settings);
    Rule taken;
    QObject::connect(&later, &RuleEditor::ruleDidChange, &later,
                     [&taken](const Rule &rule) { taken = rule; });
    QComboBox *list = nullptr;
    for (QComboBox *combo : later.findChildren<QComboBox *>()) {
        if (combo->accessibleName() == u"Saved rules"_s)
            list = combo;
    }
    ASSERT_TRUE(list);
    ASSERT_EQ(list->count(), 1);
    Q_EMIT list->textActivated(u"Bad"_s);
    EXPECT_EQ(taken, Rule::failed());
    press(u"Forget"_s);
    EXPECT_EQ(saved->count(), 0);
    EXPECT_EQ(settings.string(Setting::savedRules), QString());
    settings.set(Setting::savedRules, u"{nonsense"_s);
    EXPECT_TRUE(SavedRules(settings).all().isEmpty());
}

} // namespace quorvin

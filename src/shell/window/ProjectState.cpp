// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/ProjectState.h"

#include "filter/RuleText.h"
#include "projects/ProjectItems.h"
#include "shell/compare/ComparisonView.h"
#include "shell/filelist/FilelistController.h"
#include "shell/filelist/SavedRules.h"
#include "shell/info/ExtendedPane.h"
#include "shell/info/InfoView.h"
#include "shell/window/MainView.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

constexpr std::array kTabNames{"general"_L1, "extended"_L1, "comparison"_L1, "custom"_L1};
static_assert(kTabNames.size() == kTabCount);

constexpr std::array kRowNames{"all"_L1, "differing"_L1, "equal"_L1}; ///< by `ComparisonFilter`

ProjectFilter filterOf(const FilelistFilter &criteria)
{
    return {.rule = textOfRule(criteria.rule),
            .name = criteria.filenameText,
            .content = criteria.globalText,
            .hideUnknown = criteria.hideUnknownFiles};
}

ProjectComparison comparisonOf(const ComparisonView &comparison, const std::vector<ProjectFile> &files,
                               const std::vector<FilelistItemPtr> &list)
{
    const QStringList columns = comparison.columns(list);
    const bool areAll = std::ranges::equal(columns, files, {}, {}, &ProjectFile::path);
    return {.columns = areAll ? std::nullopt : std::optional(columns),
            .rows = kRowNames.at(static_cast<std::size_t>(comparison.filter()))};
}

/// What is kept of it counts for nothing.
bool isSameFile(const ProjectFile &one, const ProjectFile &other)
{
    return one.path == other.path && one.shownComponents == other.shownComponents;
}

} // namespace

Project projectOf(MainView &view, FilelistController &files, LiveSettings &settings)
{
    Project project;
    project.files = projectFilesOf(files.filelist());
    project.tab = kTabNames.at(static_cast<std::size_t>(view.info().currentTab()));
    project.filter = filterOf(files.filtering().criteria());
    for (const WatchedParameter &each : view.info().extended().watched())
        project.watched.push_back({each.group, each.stream, each.key, each.label});
    const QMap<QString, QString> rules = SavedRules(settings).all();
    for (auto rule = rules.begin(); rule != rules.end(); ++rule)
        project.rules.emplace(rule.key(), rule.value());
    project.comparison = comparisonOf(view.info().comparison(), project.files, files.filelist());
    return project;
}

QString applyProject(const Project &project, MainView &view, FilelistController &files,
                     LiveSettings &settings)
{
    SavedRules saved(settings);
    const QMap<QString, QString> own = saved.all();
    for (const auto &[name, text] : project.rules) {
        if (!own.contains(name) && parseRule(text))
            saved.keep(name, text);
    }
    WatchedParameters watched;
    for (const ProjectWatch &each : project.watched)
        watched.push_back({each.group, each.stream, each.key, each.label});
    view.info().extended().watchForWindow(watched);

    ComparisonView &comparison = view.info().comparison();
    const auto rows = std::ranges::find(kRowNames, project.comparison.rows);
    if (rows != kRowNames.end())
        comparison.setFilter(static_cast<ComparisonFilter>(rows - kRowNames.begin()));
    if (project.comparison.columns)
        comparison.setColumns(files.filelist(), *project.comparison.columns);

    const auto rule = parseRule(project.filter.rule);
    files.filtering().setCriteria({.hideUnknownFiles = project.filter.hideUnknown,
                                   .filenameText = project.filter.name,
                                   .globalText = project.filter.content,
                                   .rule = rule.value_or(Rule())});
    return rule
        ? QString()
        : QCoreApplication::translate("WindowProject", "The rule of the project is not understood: %1")
              .arg(rule.error().reason);
}

std::optional<Tab> tabOf(const Project &project)
{
    const auto name = std::ranges::find(kTabNames, project.tab);
    return name == kTabNames.end() ? std::nullopt
                                   : std::optional(tabFrom(static_cast<int>(name - kTabNames.begin())));
}

bool isWorthSaving(const Project &now, const Project &saved)
{
    return now.filter != saved.filter || now.watched != saved.watched
        || now.comparison.columns != saved.comparison.columns
        || !std::ranges::equal(now.files, saved.files, isSameFile);
}

} // namespace quorvin

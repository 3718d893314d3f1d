#include "desktop/guide/guide_pages.h"

#include <QFile>
#include <QRegularExpression>
#include <QWidget>
#include <algorithm>

#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

const std::vector<std::string_view>& GuidePages() {
    // The program's first box sends the reader to page 3, the firm's defaults.
    static const std::vector<std::string_view> pages = {
        // clang-format off
        "index",           "first-document",  "firm-defaults",   "naming",          "documents",
        "gallery",         "packages",        "custom-forms",    "grid",            "live-page",
        "undo",            "amounts",         "address-books",   "schedule-a",      "calculator",
        "blanks",          "create",          "op236",           "envelopes",       "files",
        "templates",       "field-list",      "closing-statement", "backup",          "finding",
        "messages",        "keyboard",        "command-line",    "windows",
        // clang-format on
    };
    return pages;
}

const std::vector<GuideTopic>& GuideTopics() {
    // clang-format off
    static const std::vector<GuideTopic> topics = {
        // control          page
        {"txtJobName",      "naming"},
        {"cmdNameAs",       "naming"},
        {"optConf",         "documents"},
        {"List1",           "documents"},
        {"documentFilter",  "finding"},
        {"findBox",         "finding"},
        {"recentJobs",      "finding"},
        {"blanks",          "blanks"},
        {"finishPanel",     "create"},
        {"previewPane",     "live-page"},
        {"List2",           "documents"},
        {"cmdPackages",     "packages"},
        {"cmdCustom",       "custom-forms"},
        {"grdField",        "grid"},
        {"lblJump",         "grid"},
        {"txtEdit",         "grid"},
        {"MonthView1",      "grid"},
        {"Combo1",          "grid"},
        {"Combo2",          "address-books"},
        {"txtBlock",        "schedule-a"},
        {"cmdCreate",       "create"},
        {"cmdOpen",         "files"},
        {"cmdReset",        "files"},
        {"cmdExit",         "files"},
        {"cmdTemplate",     "templates"},
        {"cmdPrintFList",   "field-list"},
        {"cmdOP236",        "op236"},
        {"cmdEnvelopes",    "envelopes"},
        {"List3",           "firm-defaults"},
        {"cmdSelect",       "firm-defaults"},
        // windows beside the main screen
        {"FirstRun",        "first-document"},
        {"Browser",         "files"},
        {"PackageEditor",   "packages"},
        {"AddressEditor",   "address-books"},
        {"Calculator",      "calculator"},
        {"Backup",          "backup"},
        {"Clients",         "firm-defaults"},
        {"OP236",           "op236"},
        {"Envelopes",       "envelopes"},
    };
    // clang-format on
    return topics;
}

QString GuideText(std::string_view page) {
    QFile file(QStringLiteral(":/guide/%1.md").arg(Shown(page)));
    if (!file.open(QIODevice::ReadOnly)) return {};
    return QString::fromUtf8(file.readAll());
}

QString GuideTitle(std::string_view page) {
    return GuideText(page)
        .section(QLatin1Char('\n'), 0, 0)
        .remove(QRegularExpression(QStringLiteral("^#+ *")))
        .trimmed();
}

QString GuideAddress(std::string_view page) {
    return QStringLiteral("qrc:/guide/%1.md").arg(Shown(page));
}

QString GuideAnchor(const QString& heading) {
    return heading.toLower()
        .remove(QRegularExpression(QStringLiteral("[^a-z0-9 -]")))
        .replace(QLatin1Char(' '), QLatin1Char('-'));
}

std::vector<std::string_view> GuidePagesWith(const QStringList& words) {
    std::vector<std::string_view> found;
    for (const std::string_view page : GuidePages()) {
        const QString text = GuideText(page);
        const bool all = std::all_of(words.begin(), words.end(), [&](const QString& word) {
            return text.contains(word, Qt::CaseInsensitive);
        });
        if (all) found.push_back(page);
    }
    return found;
}

std::string_view GuidePageFor(const QWidget* control) {
    for (; control; control = control->parentWidget()) {
        // Members of a group bear a number behind the group's name: optConf3.
        QString name = control->objectName();
        while (!name.isEmpty()) {
            const std::string known = Utf8(name);
            const auto& topics = GuideTopics();
            const auto topic = std::find_if(topics.begin(), topics.end(),
                                            [&](const GuideTopic& one) { return one.control == known; });
            if (topic != topics.end()) return topic->page;
            if (!name.back().isDigit()) break;
            name.chop(1);
        }
    }
    return GuidePages().front();
}

}  // namespace quillmark::desktop

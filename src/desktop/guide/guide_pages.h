#pragma once

#include <QString>
#include <QStringList>
#include <string_view>
#include <vector>

class QWidget;

/// The user's guide: Markdown pages that the program carries, one file each in docs/guide.
namespace quillmark::desktop {

/// The names of the pages in reading order; the first is the way into the guide.
const std::vector<std::string_view>& GuidePages();

/// A page as Markdown; empty for a name that is none.
QString GuideText(std::string_view page);
/// The page's heading.
QString GuideTitle(std::string_view page);
/// Where the page's file is found: "qrc:/guide/NAME.md".
QString GuideAddress(std::string_view page);

/// The place of a heading inside its page, as links name it: lower case, words joined by hyphens.
QString GuideAnchor(const QString& heading);

/// The pages that hold every one of the words, in any case, in reading order.
std::vector<std::string_view> GuidePagesWith(const QStringList& words);

/// The page that helps with a control, which is told by its name or that of the nearest named control around
/// it; the first page for one that has no help of its own, and for none.
std::string_view GuidePageFor(const QWidget* control);

/// The control names that have a page of their own, with the page.
struct GuideTopic {
    std::string_view control;
    std::string_view page;
};
const std::vector<GuideTopic>& GuideTopics();

}  // namespace quillmark::desktop

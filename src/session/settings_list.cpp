#include "session/settings_list.h"

#include <algorithm>

#include "core/field_registry.h"
#include "core/fields.h"
#include "core/text_conversions.h"
#include "platform/code_page.h"
#include "session/state/buttons.h"
#include "session/state/ready.h"
#include "session/state/stages.h"

namespace quillmark {

namespace {

/// The firm's own details.
constexpr field::Field kFirmFields[] = {
    field::SellerLawfirm,          field::SellerAtty,      field::SellerAttyAddr1, field::SellerAttyAddr2,
    field::SellerAttyCityStateZip, field::SellerAttyPhone, field::SellerAttyFax,   field::SellerAttyEmail,
    field::SellerAttysFee,         field::Witness2};
constexpr std::size_t kOpenMark = 26;  ///< character 27 of a row, "*" while the firm has not set the field

std::string YesNo(bool on) {
    return on ? "Y" : "N";
}

/// A setting that is answered with one of a few words.
struct AnswerRow {
    std::string_view label;
    std::string_view title;
    std::string_view prompt;
    std::vector<std::string_view> accepted;
    std::string (*get)(const Settings&);
    void (*set)(Settings&, const std::string&);
};

constexpr std::string_view kPathLabel = "DATABASE PATH ------------>  ";

// clang-format off
const std::vector<AnswerRow> kAnswers = {
    {"local WORD auto save  (Y/N)  ", " WORD AUTO-SAVE OPTION",
     "Enter \"Y\" to enable automatic save of created documents to the local \"My Documents\" folder", {"Y", "N"},
     [](const Settings& s) { return YesNo(s.wordAutoSave); },
     [](Settings& s, const std::string& answer) { s.wordAutoSave = answer == "Y"; }},
    {"show document alerts  (Y/N)  ", " DOCUMENT ALERTS OPTION",
     "Enter \"Y\" to enable displaying of document-alerts window whenever the \"Create\" button is clicked", {"Y", "N"},
     [](const Settings& s) { return YesNo(s.documentAlerts); },
     [](Settings& s, const std::string& answer) { s.documentAlerts = answer == "Y"; }},
    {"use best-fit pg view  (Y/N)  ", " AUTOMATIC ZOOM OPTION",
     "Enter \"Y\" to enable automatic zoom of created documents so that they fill window from left to right", {"Y", "N"},
     [](const Settings& s) { return YesNo(s.bestFitPageView); },
     [](Settings& s, const std::string& answer) { s.bestFitPageView = answer == "Y"; }},
    {"show descr footers  (Y/N/P)  ", " DOCUMENT FOOTERS OPTION",
     "Enter \"Y\" to enable descriptive document footer on every page (or \"P\" to use name of lawfirm in footer)",
     {"Y", "N", "P"},
     [](const Settings& s) { return std::string(1, static_cast<char>(s.footers)); },
     [](Settings& s, const std::string& answer) { s.footers = static_cast<Footers>(answer.front()); }},
    {"automatic proper-case (Y/N)  ", " AUTOMATIC CASE OPTION",
     "Enter \"Y\" to enable automatic proper case for all fields, as you type", {"Y", "N"},
     [](const Settings& s) { return YesNo(s.properCase); },
     [](Settings& s, const std::string& answer) { s.properCase = answer == "Y"; }},
    {"prorate for leap yrs  (Y/N)  ", " LEAP YEAR OPTION",
     "Enter \"Y\" to account for additional day in leap-year prorations, or \"N\" to always use a 365-day year", {"Y", "N"},
     [](const Settings& s) { return YesNo(s.leapYears); },
     [](Settings& s, const std::string& answer) { s.leapYears = answer == "Y"; }},
    {"PARA-PRO MODE      (ON/OFF)  ", " PARA-PRO MODE OPTION",
     "Enter \"ON\" to activate Professional Mode if you are an independent paralegal doing work for multiple lawfirms",
     {"ON", "OFF"},
     [](const Settings& s) { return std::string(s.paraPro ? "ON" : "OFF"); },
     [](Settings& s, const std::string& answer) { s.paraPro = answer == "ON"; }},
};
// clang-format on

const AnswerRow* FindAnswer(std::string_view row) {
    const auto found = std::find_if(kAnswers.begin(), kAnswers.end(),
                                    [&](const AnswerRow& answer) { return row.starts_with(answer.label); });
    return found == kAnswers.end() ? nullptr : &*found;
}

/// The value in the form in which the field shows it. The attorney keeps the number behind the slash here.
std::string ShownForm(int n, const std::string& value, Job& job) {
    if (n == field::SellerAtty || value.empty()) return value;
    job.SetField(n, value);
    return job.D(n);
}

SettingsRow DefaultRow(int n, std::string_view value) {
    const std::string_view marker = FieldMarker(n);
    SettingsRow row{n, FirmDefaultRow(marker, value.empty() ? marker : value), std::string(value)};
    row.text[kOpenMark] = value.empty() ? '*' : ' ';
    return row;
}

}  // namespace

void SettingsList::Show() {
    rows_.clear();
    for (const int n : kFirmFields) {
        screen_.job.txtField(n).relevant = true;
        const std::string value = firm_.defaults().ValueOf(FieldMarker(n));
        rows_.push_back(DefaultRow(n, value == FieldMarker(n) ? "" : value));
    }
    rows_.push_back({});
    rows_.push_back({0, std::string(kPathLabel) + firm_.settings().databasePath, {}});
    for (const AnswerRow& answer : kAnswers) {
        if (&answer == &kAnswers.back()) rows_.push_back({});
        rows_.push_back({0, std::string(answer.label) + answer.get(firm_.settings()), {}});
    }
    Enter(Stage::FirmDefaults, screen_);
    screen_.txtJobName.enabled = false;
    screen_.List1Enabled = screen_.List2Enabled = false;
    screen_.picInfo =
        " Select an item to see description.  Dbl-Click to edit  (use \";\" separator for multiple choice)";
}

void SettingsList::Select(std::size_t row) {
    RequireReady(screen_);
    Require(row < rows_.size(), "the settings list has no such row");
    if (rows_[row].field > 0) screen_.picInfo = FieldDescription(rows_[row].field, screen_.job);
}

void SettingsList::Edit(std::size_t row) {
    RequireReady(screen_);
    Require(row < rows_.size(), "the settings list has no such row");
    SettingsRow& chosen = rows_[row];
    Require(!chosen.text.empty(), "this row of the settings list is blank");
    beginFieldEntry_();
    if (chosen.field > 0)
        EditDefault(chosen);
    else if (chosen.text.starts_with(kPathLabel))
        EditPath(chosen);
    else
        EditAnswer(chosen);
}

void SettingsList::EditDefault(SettingsRow& row) {
    if (row.field == field::SellerLawfirm && firm_.ServesClient()) return;
    const std::string marker(FieldMarker(row.field));
    auto answer = machine_.dialogs.Ask({" EDIT FIELD VALUE", "Enter new value for  " + marker, row.value});
    if (!answer) return;
    std::replace(answer->begin(), answer->end(), '"', '\'');
    row = DefaultRow(row.field, *answer == marker ? "" : ShownForm(row.field, *answer, screen_.job));
    ShowOpen(OpenDoes::SaveSettings, true, screen_);
}

void SettingsList::EditPath(SettingsRow& row) {
    const auto answer = machine_.dialogs.Ask({" EDIT DATA PATH", "Enter complete database path ...",
                                              ReadSettings(firm_.ProgramFolder()).databasePath});
    if (!answer || answer->empty()) return;
    std::string path = Lowered(*answer);
    if (path.front() < 'a' || path.front() > 'z') {
        machine_.dialogs.Tell("", "Path specification must be literal", DialogIcon::Warning);
        return;
    }
    if (!path.ends_with('\\')) path += '\\';
    firm_.ChangeDatabasePath(path);
    row.text = std::string(kPathLabel) + path;
    ShowOpen(OpenDoes::SaveSettings, true, screen_);
}

void SettingsList::EditAnswer(SettingsRow& row) {
    const AnswerRow& setting = *FindAnswer(row.text);
    const std::string present = setting.get(firm_.settings());
    const auto typed =
        machine_.dialogs.Ask({std::string(setting.title), std::string(setting.prompt), present});
    if (!typed) return;
    const std::string answer = UpperCase(Trimmed(*typed));
    if (std::find(setting.accepted.begin(), setting.accepted.end(), answer) == setting.accepted.end()) return;
    setting.set(firm_.ChangeSettings(), answer);
    row.text = std::string(setting.label) + answer;
    ShowOpen(OpenDoes::SaveSettings, true, screen_);
    if (&setting != &kAnswers.back() || answer == present) return;
    machine_.dialogs.Tell(
        "",
        "Changing the Para-Pro option requires a re-start of the program.  \nQuillmark will now "
        "shut-down.");
    Save();
    screen_.ended = !screen_.HasUnsavedChanges();
}

void SettingsList::Save() {
    FirmDefaults defaults;
    for (const SettingsRow& row : rows_) {
        if (row.field > 0) defaults.Set(FieldMarker(row.field), row.value);
    }
    if (!firm_.Keep(defaults)) return;
    for (OptionButton& option : screen_.options) option.enabled = false;
    screen_.cmdOpen.enabled = false;
    screen_.picInfo = " Settings saved";
}

}  // namespace quillmark

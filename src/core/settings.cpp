#include "core/settings.h"

#include <array>
#include <cstddef>
#include <vector>

#include "platform/atomic_file.h"
#include "platform/code_page.h"
#include "platform/record_file.h"

namespace quillmark {
namespace {

constexpr const char* kSettingsFile = "DBasePath.txt";
constexpr std::size_t kLines = 8;

std::string_view Letter(bool on) {
    return on ? "Y" : "N";
}

void Take(std::string_view answer, std::string_view on, std::string_view off, bool& setting) {
    if (answer == on) setting = true;
    if (answer == off) setting = false;
}

void Take(std::string_view answer, Footers& setting) {
    for (const Footers footers : {Footers::None, Footers::Description, Footers::LawFirm}) {
        if (answer == std::string_view(reinterpret_cast<const char*>(&footers), 1)) setting = footers;
    }
}

/// The file's lines; empty where it has ended.
std::array<std::string, kLines> Lines(const std::string& file, std::string_view bytes) {
    std::array<std::string, kLines> lines;
    RecordReader reader(file, bytes);
    for (std::size_t i = 0; i < kLines && reader.Next(); ++i) {
        if (reader.Items() != 1) reader.Fail("holds more than one setting");
        lines[i] = i == 0 ? reader.Text(0) : UpperCase(reader.Text(0));
    }
    return lines;
}

}  // namespace

Settings SettingsOfRecords(const std::string& file, std::string_view bytes) {
    const auto lines = Lines(file, bytes);
    Settings settings;
    if (!lines[0].empty()) settings.databasePath = lines[0];
    Take(lines[1], "Y", "N", settings.wordAutoSave);
    Take(lines[2], "Y", "N", settings.documentAlerts);
    Take(lines[3], "Y", "N", settings.bestFitPageView);
    Take(lines[4], settings.footers);
    Take(lines[5], "ON", "OFF", settings.paraPro);
    Take(lines[6], "Y", "N", settings.properCase);
    Take(lines[7], "Y", "N", settings.leapYears);
    return settings;
}

std::string SettingsRecords(const Settings& settings) {
    const char footers = static_cast<char>(settings.footers);
    RecordWriter writer;
    writer.Write({settings.databasePath});
    writer.Write({Letter(settings.wordAutoSave)});
    writer.Write({Letter(settings.documentAlerts)});
    writer.Write({Letter(settings.bestFitPageView)});
    writer.Write({std::string_view(&footers, 1)});
    writer.Write({settings.paraPro ? "ON" : "OFF"});
    writer.Write({Letter(settings.properCase)});
    writer.Write({Letter(settings.leapYears)});
    return writer.Bytes();
}

Settings ReadSettings(const std::filesystem::path& programFolder) {
    try {
        return SettingsOfRecords(kSettingsFile, ReadFile(SettingsFile(programFolder), kSettingsLimit));
    } catch (const FileError& error) {
        if (error.kind != FileError::Kind::NotFound) throw;
        return {};
    }
}

std::filesystem::path SettingsFile(const std::filesystem::path& programFolder) {
    return programFolder / kSettingsFile;
}

Settings MergedSettings(const Settings& before, const Settings& mine, const Settings& present,
                        std::vector<std::string>& contested) {
    Settings merged = present;
    const auto merge = [&](auto Settings::*setting, const char* name) {
        if (mine.*setting == before.*setting) return;
        merged.*setting = mine.*setting;
        if (present.*setting != before.*setting && present.*setting != mine.*setting)
            contested.emplace_back(name);
    };
    merge(&Settings::databasePath, "DATABASE PATH");
    merge(&Settings::wordAutoSave, "local WORD auto save");
    merge(&Settings::documentAlerts, "show document alerts");
    merge(&Settings::bestFitPageView, "use best-fit pg view");
    merge(&Settings::footers, "show descr footers");
    merge(&Settings::paraPro, "PARA-PRO MODE");
    merge(&Settings::properCase, "automatic proper-case");
    merge(&Settings::leapYears, "prorate for leap yrs");
    return merged;
}

}  // namespace quillmark

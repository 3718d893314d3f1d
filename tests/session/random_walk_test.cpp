#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <random>
#include <sstream>

#include "core/field_registry.h"
#include "platform/code_page.h"
#include "selection/document_catalogue.h"
#include "selection/job_list.h"
#include "session/office_fixture.h"
#include "session/screen_text.h"
#include "support/form_docx.h"

namespace quillmark {
namespace {

using test::OfficeTest;
using test::TextsOf;
using Names = std::vector<std::string>;

constexpr int kSteps = 400;

// clang-format off
const Names kJobNames = {"Abbott", "Pell - 330 Lovely Street", "Sørensen", "Whitcomb", "", "regency"};
const Names kTexts = {
    "", "Anna Abbott", "harborline LLC", "12 Elm Street", "Bridgeport", "Nowhere", "06604", "$500,000", "1250.5",
    "three", "March 9, 2026", "next week", "2035550100", "a@b.example", "[price]", "POC", "25 - P", "3.5 = U",
    "Marriage; Divorce", "\"quoted\"", "Zoë’s \x7E <Trust>", "line\rline\r\nline", " ", "- ", "0", "-1", "12/31/2025",
    "Hale & Pike; Pike & Partners", "9999999999999.99", "IMAGE -> (Select & R-Click for options)",
};
const Names kButtons = {"cmdOpen", "cmdOpen", "cmdOpen", "cmdOpen", "cmdOpen", "cmdOpen", "cmdReset", "cmdReset",
                        "cmdReset", "cmdTemplate", "cmdTemplate", "cmdNameAs", "cmdNameAs", "cmdPackages", "cmdOP236",
                        "cmdSelect", "cmdExit"};
// clang-format on

/// The first text that changed; empty if none did.
std::string FirstDifference(const Names& before, const Names& after) {
    const auto [was, is] = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    if (was == before.end() && is == after.end()) return {};
    return (was == before.end() ? "nothing" : *was) + " became " + (is == after.end() ? "nothing" : *is);
}

/// Answers every box, with anything that it takes.
class CarelessPerson final : public Dialogs {
 public:
    CarelessPerson(std::mt19937& random, const Names& texts) : random_(random), texts_(texts) {}
    DialogButton Show(const MessageDialog& box) override {
        ++boxes;
        return box.buttons[Below(box.buttons.size())];
    }
    std::optional<std::string> Ask(const InputDialog& box) override {
        ++boxes;
        const std::size_t choice = Below(4);
        if (choice == 0) return std::nullopt;
        return choice == 1 ? box.proposed : texts_[Below(texts_.size())];
    }

    int boxes = 0;

 private:
    std::size_t Below(std::size_t n) { return std::uniform_int_distribution<std::size_t>(0, n - 1)(random_); }

    std::mt19937& random_;
    const Names& texts_;
};

/// A user without a plan at the whole main screen.
class RandomWalk : public OfficeTest, public ::testing::WithParamInterface<unsigned> {
 protected:
    using Step = void (RandomWalk::*)();

    RandomWalk() : random_(GetParam()) {
        test::WriteBytes(scratch / "defaults.fld",
                         FirmDefaultRecord("[seller lawfirm]", "Hale & Pike") +
                             FirmDefaultRecord("[seller atty]", "Ruth Hale/101; Sam Pike/202"));
        test::WriteBytes(scratch / "package.def",
                         "\"<02>SALE\"\r\n\"Deed / Warranty\"\r\n\"Closing Statement\"\r\n");
        test::WriteBytes(scratch / "data/customforms/Rider.docx",
                         test::FormDocx{test::Line("[sale price numeric] and [lot fee]")}.Bytes());
        test::WriteBytes(scratch / "data/customforms/Rider.inf",
                         "\"[sale price numeric]\",76,0\r\n\"[lot fee]\",0,0\r\n\"[pool]\",0,0\r\n");
    }

    std::size_t Below(std::size_t n) { return std::uniform_int_distribution<std::size_t>(0, n - 1)(random_); }
    const std::string& OneOf(const Names& names) { return names[Below(names.size())]; }

    void Note(std::string step) {
        history_.push_back(std::move(step));
        if (history_.size() > 25) history_.pop_front();
    }
    std::string Where() const {
        std::ostringstream where;
        where << "seed " << GetParam() << ", step " << step_ << ":";
        for (const std::string& step : history_) where << "\n  " << step;
        return where.str();
    }

    // What the user can do.
    void Name() {
        const std::string& name = OneOf(kJobNames);
        Note("name " + name);
        screen->TypeName(name);
    }
    void Enter() {
        Note("enter");
        screen->EnterName();
    }
    void Pick() {
        const std::string line = Below(8) == 0 ? "[ Rider ]" : State().List1[Below(State().List1.size())];
        Note("pick " + line);
        screen->PickDocument(line);
    }
    void Drop() {
        const std::string line =
            State().List2.empty() ? "Deed" : State().List2[Below(State().List2.size())].name;
        Note("drop " + line);
        screen->DropDocument(line);
    }
    void Legal() {
        Names lines;
        for (const JobListLine& line : State().List2)
            if (Below(2) == 0) lines.push_back(line.name);
        Note("legal size for " + std::to_string(lines.size()));
        screen->SelectLegal(lines);
    }
    /// Mostly one that can be clicked.
    int AnyOption() {
        const int first = static_cast<int>(Below(kOptions));
        if (Below(5) == 0) return first + static_cast<int>(Below(3));
        for (int i = 0; i < kOptions; ++i) {
            const int n = (first + i) % kOptions + 1;
            if (State().options[static_cast<std::size_t>(n)].enabled) return n;
        }
        return first;
    }
    void ClickOption() {
        const int n = AnyOption();
        Note("option " + std::to_string(n));
        const Names before = Documents();
        screen->ClickOption(n);
        if (n != PowerOfAttorney && n != EstateTrust) ExpectNothingLost(before);
        // A picked deed can bring such a pair about, a click cannot.
        for (const auto& [one, other] : {std::pair{Entity, TwoSellers},
                                         {Entity, PowerOfAttorney},
                                         {Entity, EstateTrust},
                                         {EstateTrust, TwoSellers}})
            if (n == one || n == other) {
                EXPECT_FALSE(State().job.optConf(one) && State().job.optConf(other))
                    << one << " with " << other << "\n"
                    << Where();
            }
    }
    void ClearOption() {
        const int n = AnyOption();
        Note("clear option " + std::to_string(n));
        const Names before = Documents();
        screen->DoubleClickOption(n);
        if (n != EstateTrust && n != LandMultiFamily) ExpectNothingLost(before);
    }
    /// Mostly a field that has a row.
    int AnyField() {
        const bool fromGrid = !State().grid.empty() && Below(10) > 0;
        return fromGrid ? State().grid[Below(State().grid.size())].n : static_cast<int>(Below(242));
    }
    void Field() {
        const int n = AnyField();
        const std::string& text = OneOf(kTexts);
        const auto way = static_cast<EntryWay>(Below(3));
        Note("field " + std::to_string(n) + " way " + std::to_string(static_cast<int>(way)) + ": " + text);
        screen->EnterField(n, text, way);
    }
    void UserField() {
        const std::string marker = Below(2) ? "[lot fee]" : "[pool]";
        const std::string& text = OneOf(kTexts);
        Note("field " + marker + ": " + text);
        screen->EnterUserField(marker, text, static_cast<EntryWay>(Below(3)));
    }
    void Editor() {
        const int n = AnyField();
        const std::string& text = OneOf(kTexts);
        Note("type in the editor of " + std::to_string(n) + ": " + text);
        screen->TypeInEditor(n, text);
    }
    void Unlock() {
        const int n = AnyField();
        Note("unlock " + std::to_string(n));
        screen->UnlockRow(n);
    }
    void ClickNote() {
        const int n = AnyField();
        const int column = static_cast<int>(Below(3)) + 1;
        Note("note " + std::to_string(n) + ", column " + std::to_string(column));
        screen->ClickNote(n, column);
    }
    void Jump() {
        const int group = static_cast<int>(Below(8));
        Note("jump " + std::to_string(group));
        screen->ClickJumpLabel(group);
    }
    void Button() {
        const std::string& button = OneOf(kButtons);
        Note("click " + button);
        const bool saves = button == "cmdOpen" && State().Saves();
        screen->Click(button);
        if (saves && !State().cmdOpen.enabled && !screen->SettingsListShown()) ExpectFileHoldsTheJob();
        if (screen->BrowserOpen()) UseBrowser();
        if (screen->HasEnded()) Restart();
    }
    void Settings() {
        const std::size_t row = Below(22);
        Note("setting " + std::to_string(row));
        screen->EditSetting(row);
        if (screen->HasEnded()) Restart();
    }

    /// The browser keeps the screen waiting until something has been chosen.
    void UseBrowser() {
        const bool templates = State().mode == ScreenMode::Presets;
        Names entries;
        for (const auto& file : std::filesystem::directory_iterator(scratch / "data"))
            if (file.path().extension() == ".dat") entries.push_back(file.path().stem().string());
        std::sort(entries.begin(), entries.end());
        std::erase_if(entries, [&](const std::string& name) { return IsTemplateName(name) != templates; });
        if (templates) entries.emplace_back(kNewTemplateEntry);
        if (entries.empty() || Below(6) == 0) {
            Note("escape from the browser");
            screen->CloseBrowser();
            if (templates) screen->Click("cmdReset");
            return;
        }
        const std::string& entry = OneOf(entries);
        const bool spawns = templates && entry != kNewTemplateEntry && Below(2) == 0;
        Note((spawns ? "spawn " : "load ") + entry);
        spawns ? screen->Spawn(entry) : screen->LoadJob(entry, templates);
        EXPECT_FALSE(screen->BrowserOpen()) << Where();
    }
    void Restart() {
        Note("the program starts");
        screen = std::make_unique<MainScreen>(scratch.path(),
                                              Machine{.clock = clock, .dialogs = person_, .shell = shell});
        screen->Start();
    }

    void TakeAny() {
        // clang-format off
        static constexpr Step kAll[] = {
            &RandomWalk::Name,   &RandomWalk::Name,     &RandomWalk::Enter,       &RandomWalk::Pick,
            &RandomWalk::Pick,   &RandomWalk::Pick,     &RandomWalk::Pick,        &RandomWalk::Drop,
            &RandomWalk::Legal,  &RandomWalk::Unlock,   &RandomWalk::ClickOption, &RandomWalk::ClickOption,
            &RandomWalk::Field,  &RandomWalk::Field,    &RandomWalk::Field,       &RandomWalk::Field,
            &RandomWalk::Field,  &RandomWalk::Editor,   &RandomWalk::ClearOption, &RandomWalk::ClickNote,
            &RandomWalk::Jump,   &RandomWalk::Button,   &RandomWalk::Button,      &RandomWalk::Button,
            &RandomWalk::Button, &RandomWalk::Settings, &RandomWalk::UserField,
        };
        // clang-format on
        Take(kAll[Below(std::size(kAll))]);
    }

    // What must hold after every step.
    void Take(Step step) {
        const Names before = TextsOf(State());
        person_.boxes = 0;
        try {
            (this->*step)();
        } catch (const NotAllowed& refused) {
            history_.back() += " - " + std::string(refused.what());
            // A box that was answered may have led to the refusal.
            if (person_.boxes == 0) {
                EXPECT_EQ("", FirstDifference(before, TextsOf(State()))) << Where();
            }
        } catch (const std::exception& failure) {
            ADD_FAILURE() << failure.what() << "\n" << Where();
        }
        Check();
    }

    void Check() {
        ExpectRowsInOrder();
        if (State().mode == ScreenMode::Job) ExpectRowsOfRelevantFields();
        ExpectOptionsAgree();
        for (const std::string& text : TextsOf(State()))
            EXPECT_FALSE(FirstUnencodable(text)) << text << "\n" << Where();
    }

    void ExpectRowsInOrder() {
        const GridRow* former = nullptr;
        for (const GridRow& row : State().grid) {
            if (row.kind == RowKind::Heading) continue;
            if (former) {
                const double key = std::stod(row.key), formerKey = std::stod(former->key);
                const bool ordered =
                    formerKey < key || (formerKey == key && (row.n == 0 || former->n < row.n));
                EXPECT_TRUE(ordered) << former->label << " before " << row.label << "\n" << Where();
            }
            former = &row;
        }
        EXPECT_LT(State().currentRow, static_cast<int>(State().grid.size())) << Where();
        for (const GridGroup& group : State().groups) {
            if (!group.HasRows()) continue;
            ASSERT_LT(static_cast<std::size_t>(group.headingRow), State().grid.size()) << Where();
            EXPECT_EQ(RowKind::Heading, State().grid[static_cast<std::size_t>(group.headingRow)].kind)
                << Where();
        }
    }

    void ExpectRowsOfRelevantFields() {
        std::array<int, kFields + 1> rows = {};
        int users = 0;
        int open = 0;
        for (const GridRow& row : State().grid) {
            if (row.kind == RowKind::Field) ++rows[static_cast<std::size_t>(row.n)];
            if (row.kind == RowKind::User) ++users;
            if (row.kind == RowKind::User && row.value.empty() && &row != &State().grid.back()) ++open;
            if (row.kind == RowKind::Field && row.label.ends_with('*')) ++open;
            if (row.kind == RowKind::Field) ExpectRowShowsField(row);
        }
        int relevant = 0;
        for (int n = 1; n <= kFields; ++n) {
            const FieldHolder& holder = State().job.txtField(n);
            EXPECT_EQ(holder.relevant ? 1 : 0, rows[static_cast<std::size_t>(n)]) << "field " << n << "\n"
                                                                                  << Where();
            if (holder.relevant) ++relevant;
        }
        EXPECT_EQ(relevant + users, State().total) << Where();
        EXPECT_EQ(open, State().remaining) << Where();
    }

    void ExpectRowShowsField(const GridRow& row) {
        const Job& job = State().job;
        EXPECT_EQ(job.IsFilled(row.n) ? job.D(row.n).substr(0, row.value.size()) : "", row.value)
            << "field " << row.n << "\n"
            << Where();
        EXPECT_TRUE(row.label.starts_with(FieldMarker(row.n))) << Where();
    }

    void ExpectOptionsAgree() {
        const Job& job = State().job;
        for (const std::initializer_list<int> alone :
             {std::initializer_list<int>{1, 2}, {3, 4}, {5, 6}, {7, 8}, {9, 10, 13}, {11, 12}, {14, 15}})
            EXPECT_LE(std::count_if(alone.begin(), alone.end(), [&](int n) { return job.optConf(n); }), 1)
                << Where();
    }

    /// On the job list or parked.
    Names Documents() const {
        Names all;
        for (const JobListLine& line : State().List2) all.push_back(line.name);
        for (const Names& parked : State().ParkedDocuments)
            all.insert(all.end(), parked.begin(), parked.end());
        std::erase(all, kChroNotice);
        std::sort(all.begin(), all.end());
        return all;
    }
    void ExpectNothingLost(const Names& before) { EXPECT_EQ(before, Documents()) << Where(); }

    void ExpectFileHoldsTheJob() {
        const Job& job = State().job;
        const std::string file = job.name + ".dat";
        ASSERT_TRUE(std::filesystem::exists(JobFile(job.name))) << file << "\n" << Where();
        const JobFileContents contents = JobFileContentsOf(file, test::ReadBytes(JobFile(job.name)));
        std::size_t fields = 0;
        for (const auto& [n, value] : contents.fields) {
            EXPECT_EQ(job.D(n), value) << "field " << n << "\n" << Where();
            ++fields;
        }
        for (int n = 2; n <= kFields; ++n)
            if (job.IsFilled(n) && job.txtField(n).top != 0 && !job.txtField(n).forShow &&
                FieldMarker(n) != "[]" && !FieldMarker(n).empty())
                --fields;
        EXPECT_EQ(0u, fields) << "every value is in the file once\n" << Where();
        for (int n = 1; n <= kOptions; ++n)
            EXPECT_EQ(job.optConf(n), contents.options[static_cast<std::size_t>(n)]) << Where();
        EXPECT_EQ(job.JobDocuments, contents.documents) << Where();
    }

    int step_ = 0;

 private:
    std::mt19937 random_;
    CarelessPerson person_{random_, kTexts};
    std::deque<std::string> history_;
};

TEST_P(RandomWalk, LeavesTheScreenInOrder) {
    Restart();
    for (step_ = 0; step_ < kSteps && !HasFailure(); ++step_) TakeAny();
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomWalk, ::testing::Range(1u, 31u));

}  // namespace
}  // namespace quillmark

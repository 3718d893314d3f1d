#include "tools/addresses/address_editor.h"

#include <gtest/gtest.h>

#include "platform/atomic_file.h"
#include "support/scratch.h"

namespace quillmark {
namespace {

using test::ReadBytes;
using test::ScratchFolder;
using test::WriteBytes;

constexpr const char* kBank = "Any Bank _ 1 Main St _  _ Anycity, OH 43210";
constexpr const char* kOther = "Other Bank _ 2 Main St _ Floor 3 _ Anycity, OH 43210";
const SystemClock kClock;

/// A folder with one list, its editor, and a person who expects no box.
struct Desk {
    explicit Desk(AddressBook book, std::string_view bytes = {}) {
        if (!bytes.empty()) WriteBytes(folder / (std::string(NameOf(book)) + ".lst"), bytes);
        editor.emplace(book, books, person);
    }
    void Fill(const std::vector<std::string>& texts) {
        for (std::size_t box = 0; box < texts.size(); ++box) ASSERT_TRUE(editor->SetBox(box, texts[box]));
    }
    std::string TakeText() {
        const auto shown = person.TakeShown();
        return shown.size() == 1 ? shown[0].text : std::to_string(shown.size()) + " boxes";
    }
    const AddressEditorState& State() const { return editor->State(); }

    ScratchFolder folder;
    ScriptedDialogs person;
    AddressBooks books{folder.path(), kClock};
    std::optional<AddressEditor> editor;
};

TEST(AddressEditor, AddsWhatTheBoxesHold) {
    Desk desk(AddressBook::Attorneys);
    EXPECT_EQ(desk.State().title, "  Edit Database  -  Attorneys");
    EXPECT_FALSE(desk.State().cmdAdd.enabled);
    EXPECT_FALSE(desk.editor->Add());
    desk.Fill({"< attorney firm name >", "Ann Lee", "1 Elm St", "", "Anytown, CT 06123", "8605550102",
               "8605550103", "< attorney email >"});
    EXPECT_EQ(desk.State().boxes[5].text, "(860) 555-0102");
    EXPECT_TRUE(desk.editor->Add());
    const std::string record =
        "Ann Lee _ Ann Lee _ 1 Elm St _  _ Anytown, CT 06123 _ (860) 555-0102 _ (860) 555-0103 _ ";
    EXPECT_EQ(ReadBytes(desk.folder / "Attorneys.lst"), record + "\r\n");
    EXPECT_EQ(desk.State().records, std::vector<std::string>{record});
    EXPECT_TRUE(desk.person.TakeShown().empty());

    EXPECT_FALSE(desk.editor->Add());
    EXPECT_EQ(desk.TakeText(), "Entry Already Exists");
    EXPECT_EQ(ReadBytes(desk.folder / "Attorneys.lst"), record + "\r\n");
}

TEST(AddressEditor, ShowsTheRecordClickedAndRemovesEveryLineLikeIt) {
    const std::string bank = std::string(kBank) + "\r\n";
    const std::string other = std::string(kOther) + "\r\n";
    Desk desk(AddressBook::Servicers, bank + other + bank);
    EXPECT_FALSE(desk.State().cmdRemove.enabled);
    EXPECT_FALSE(desk.editor->Select(3));
    ASSERT_TRUE(desk.editor->Select(1));
    EXPECT_EQ(desk.State().boxes[2].text, "Floor 3");
    ASSERT_TRUE(desk.editor->Select(0));
    EXPECT_EQ(desk.State().boxes[2].text, "");
    EXPECT_TRUE(desk.editor->Remove());
    EXPECT_EQ(ReadBytes(desk.folder / "Servicers.lst"), other);
    EXPECT_EQ(desk.State().records, std::vector<std::string>{kOther});
    EXPECT_EQ(desk.State().boxes[0].text, "");
    EXPECT_FALSE(desk.State().cmdRemove.enabled);
    EXPECT_FALSE(desk.State().cmdAdd.enabled);
    EXPECT_FALSE(desk.editor->Remove());
}

TEST(AddressEditor, FollowsWhatOthersWriteMeanwhile) {
    Desk desk(AddressBook::Servicers, kBank);
    ASSERT_TRUE(desk.editor->Select(0));
    desk.books.Add(AddressBook::Servicers, kOther);
    EXPECT_FALSE(desk.editor->Add());
    EXPECT_EQ(desk.TakeText(), "Entry Already Exists");
    EXPECT_EQ(desk.State().records, (std::vector<std::string>{kBank, kOther}));
    desk.books.Remove(AddressBook::Servicers, kBank);
    EXPECT_FALSE(desk.editor->Remove());
    EXPECT_EQ(desk.State().records, std::vector<std::string>{kOther});
    EXPECT_TRUE(desk.person.TakeShown().empty());
}

TEST(AddressEditor, TellsWhatCannotBeReadOrKept) {
    const std::string torn = std::string("\0\0\0", 3) + "\r\n" + kBank;
    Desk desk(AddressBook::Servicers, torn);
    EXPECT_NE(desk.TakeText().find("Servicers.lst, line 1: is no text"), std::string::npos);
    EXPECT_EQ(desk.State().records, std::vector<std::string>{kBank});
    desk.Fill({"Bank _ Trust"});
    EXPECT_FALSE(desk.editor->Add());
    EXPECT_NE(desk.TakeText().find("\"Bank _ Trust\""), std::string::npos);
    EXPECT_EQ(ReadBytes(desk.folder / "Servicers.lst"), torn);

    std::filesystem::remove(desk.folder / "Servicers.lst");
    std::filesystem::create_directory(desk.folder / "Servicers.lst");
    desk.Fill({"Bank"});
    EXPECT_FALSE(desk.editor->Add());
    EXPECT_NE(desk.TakeText().find("Servicers.lst"), std::string::npos);
    EXPECT_EQ(desk.State().boxes[0].text, "Bank") << "what was typed is gone";
}

}  // namespace
}  // namespace quillmark

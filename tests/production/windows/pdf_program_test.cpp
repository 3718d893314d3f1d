#include "production/pdf/pdf_program.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "core/text_conversions.h"
#include "platform/paths.h"
#include "support/scratch.h"

namespace quillmark::test {
namespace {

TEST(PdfProgram, IsFoundOnThePathAndWhereItsSetupTold) {
    EXPECT_EQ(Lowered(TextOf(FindProgram({"no-such-program", "cmd"}).value().filename())), "cmd.exe");

    const ScratchFolder folder;
    const auto program = folder / "Any Office/soffice.exe";
    WriteBytes(program, "");
    const wchar_t* const key =
        L"Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\quillmark-test-office.exe";
    const std::wstring value = L"\"" + program.wstring() + L"\"";
    const auto size = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
    ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, key, nullptr, REG_SZ, value.c_str(), size), ERROR_SUCCESS);
    EXPECT_EQ(FindProgram({"quillmark-test-office"}), program);
    std::filesystem::remove(program);
    EXPECT_FALSE(FindProgram({"quillmark-test-office"})) << "it was taken away without a word";
    RegDeleteTreeW(HKEY_CURRENT_USER, key);
}

}  // namespace
}  // namespace quillmark::test

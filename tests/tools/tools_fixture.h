#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/machine.h"
#include "platform/paths.h"
#include "support/scratch.h"

/// The machine around a side tool, for tests: November 3, 2025, two printers, a folder for everything.
namespace quillmark::test {

/// "Dot", with the bins 7 and 9, of which the second has no name, and "Laser", the current one.
class FakePrinters final : public Printers {
 public:
    std::vector<std::string> Names() override { return {"Dot", "Laser"}; }
    std::string DefaultName() override { return "Laser"; }
    std::vector<PrinterBin> BinsOf(const std::string& printer) override {
        if (printer == "Dot") return {{7, "Tractor"}, {9, ""}};
        return {{1, "Upper"}, {4, "Manual"}};
    }
};

class FakeSheetPrinter final : public SheetPrinter {
 public:
    void Print(const PrintedPage& page) override {
        if (!fault.empty()) throw MachineError(fault);
        pages.push_back(page);
    }
    std::string fault;
    std::vector<PrintedPage> pages;
};

/// Keeps what is opened; the documents lie in a folder of the scratch.
class FakeShell final : public Shell {
 public:
    explicit FakeShell(std::filesystem::path folder) : folder_(std::move(folder)) {}
    std::filesystem::path FolderOf(SpecialFolder) override { return folder_ / "documents"; }
    void Open(const std::string& fileOrAddress) override { opened.push_back(fileOrAddress); }
    void Start(const std::filesystem::path&, const std::vector<std::string>&) override {}
    std::vector<std::string> opened;

 private:
    std::filesystem::path folder_;
};

class ToolFixture : public ::testing::Test {
 protected:
    std::string PathOf(std::string_view name) const { return TextOf(scratch / name); }

    ScratchFolder scratch;
    FixedClock clock{std::chrono::year(2025) / 11 / 3};
    ScriptedDialogs dialogs;
    FakeShell shell{scratch.path()};
    FakePrinters printers;
    FakeSheetPrinter printer;
};

}  // namespace quillmark::test

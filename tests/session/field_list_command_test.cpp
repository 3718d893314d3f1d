#include <gmock/gmock.h>

#include "session/office_fixture.h"

namespace quillmark::test {
namespace {

using ::testing::Contains;
using ::testing::HasSubstr;

/// Keeps what it is given; out of paper after the first job.
class TrayOfOneJob final : public Printer {
 public:
    void Print(const PrintJob& job) override {
        if (!printed.lines.empty()) throw MachineError("out of paper");
        printed = job;
    }
    PrintJob printed;
};

class FieldListCommand : public OfficeTest {};

TEST_F(FieldListCommand, PrintsTheListOfTheJob) {
    TrayOfOneJob tray;
    printer = &tray;
    Start();
    EXPECT_THROW(screen->Click("cmdPrintFList"), NotAllowed) << "no document is chosen";
    screen->TypeName("Abbott");
    screen->EnterName();
    screen->PickDocument("Deed / Warranty");
    screen->Click("cmdPrintFList");
    EXPECT_THAT(tray.printed.lines, Contains("File Name: Abbott"));
    EXPECT_THAT(tray.printed.lines, Contains("seller 1 name         * ______________________________"));

    screen->Click("cmdPrintFList");
    EXPECT_THAT(LastBox(), HasSubstr("out of paper"));
}

TEST_F(FieldListCommand, NeedsAPrinter) {
    Start();
    screen->TypeName("Abbott");
    screen->EnterName();
    screen->PickDocument("Deed / Warranty");
    EXPECT_THROW(screen->Click("cmdPrintFList"), NotAllowed);
}

}  // namespace
}  // namespace quillmark::test

#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

#include "desktop/toolkit/theme.h"

namespace {

/// One application for all tests, on no display unless one is asked for. It ends before the program's statics
/// do.
class Application final : public ::testing::Environment {
 public:
    void SetUp() override {
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        application_ = std::make_unique<QApplication>(count_, arguments_);
        quillmark::desktop::ApplyTheme(quillmark::desktop::ThemeChoice::Light);
    }
    void TearDown() override { application_.reset(); }

 private:
    int count_ = 1;
    char name_[14] = "desktop_tests";
    char* arguments_[2] = {name_, nullptr};
    std::unique_ptr<QApplication> application_;
};

const auto* const kApplication = ::testing::AddGlobalTestEnvironment(new Application);

}  // namespace

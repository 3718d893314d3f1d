#pragma once

#include <vector>

#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/side_window.h"
#include "session/first_run.h"

namespace quillmark::desktop {

/// The sample job and the packages that a new program folder begins with.
std::vector<SeedFile> SeedFiles();

/// The page that welcomes a newcomer and offers the ways in. Escape and closing lead to the empty name box.
class FirstRunWindow final : public SideWindow {
 public:
    explicit FirstRunWindow(QWidget* parent);

    FirstStep Step() const { return step_; }

 private:
    void Offer(const QString& caption, const QString& explanation, FirstStep step, const QString& name);

    FirstStep step_ = FirstStep::NewJob;
    Mnemonics keys_;
};

/// Shows the page; what was chosen on it.
FirstStep Welcome();

}  // namespace quillmark::desktop

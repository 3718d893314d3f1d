#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "session/firm.h"
#include "session/machine.h"
#include "session/state/screen_state.h"

namespace quillmark {

/// A row of `List3`, the settings list that replaces the grid while the firm's defaults are being set.
struct SettingsRow {
    int field = 0;  ///< of a firm default; 0 for settings and blank rows
    std::string text;
    std::string value;  ///< of a firm default; empty while the firm has set none
};

/// `List3`. It changes its rows, the firm's settings, and the first button.
class SettingsList {
 public:
    /// The arguments must outlive the object. `beginFieldEntry`: the choice of documents closes.
    SettingsList(ScreenState& screen, Firm& firm, Machine& machine, std::function<void()> beginFieldEntry)
        : screen_(screen), firm_(firm), machine_(machine), beginFieldEntry_(std::move(beginFieldEntry)) {}

    const std::vector<SettingsRow>& Rows() const { return rows_; }
    bool IsShown() const { return !rows_.empty(); }

    void Show();
    void Select(std::size_t row);  ///< click
    void Edit(std::size_t row);    ///< double click
    /// Writes settings and defaults. Throws FileError and UnencodableError.
    void Save();
    void Close() { rows_.clear(); }

 private:
    void EditDefault(SettingsRow& row);
    void EditPath(SettingsRow& row);
    void EditAnswer(SettingsRow& row);

    ScreenState& screen_;
    Firm& firm_;
    Machine& machine_;
    std::function<void()> beginFieldEntry_;
    std::vector<SettingsRow> rows_;
};

}  // namespace quillmark

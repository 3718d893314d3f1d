#pragma once

#include "word/docx/objects/engine_state.h"

namespace quillmark::word::docx::objects {

/// `Application`: the word processor itself. It ends with its last reference, or with `Quit`.
class ApplicationObject final : public Shared, public LateBound<ApplicationObject> {
 public:
    static constexpr const char* kName = "Application";
    static const MemberTable<ApplicationObject>& Members();

    explicit ApplicationObject(EngineOptions options);
    ~ApplicationObject() override;
    void CheckAlive() const { engine_->CheckRunning(); }

    std::weak_ptr<EngineState> engine() const { return engine_; }

 private:
    friend struct ApplicationMembers;
    class Options;
    class Documents;

    std::shared_ptr<EngineState> engine_;
    std::unique_ptr<Options> settings_;
    std::unique_ptr<Documents> documents_;
};

}  // namespace quillmark::word::docx::objects

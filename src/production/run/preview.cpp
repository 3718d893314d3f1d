#include "production/run/preview.h"

#include "core/fields.h"
#include "core/text_conversions.h"
#include "platform/code_points.h"
#include "platform/paths.h"
#include "production/run/create.h"
#include "production/run/normalise.h"
#include "selection/document_catalogue.h"
#include "word/docx/model/walk.h"
#include "word/docx/objects/engine.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

using Names = std::vector<std::string>;

CreateOrder OrderOfRun(const PreviewOrder& order, Names documents) {
    CreateOrder run;
    run.DocumentNames = std::move(documents);
    run.JobList = order.JobList;
    run.LegalList = order.LegalList;
    run.settings = order.settings;
    run.today = order.today;
    run.CustomFormsFolder = order.CustomFormsFolder;
    run.nameUsable = order.nameUsable;
    run.startWord = [] { return word::StartWordProcessor(word::WordProcessor::Embedded); };
    return run;
}

std::u32string TextOfDocument(const word::Document& document) {
    std::string text;
    word::docx::ForEachParagraph(word::docx::objects::ModelOf(document.Reach()).body,
                                 [&](const word::docx::Paragraph& paragraph) {
                                     text += paragraph.text;
                                     text += '\r';
                                 });
    return CodePoints(text);
}

/// One run over a job of its own.
std::u32string Type(Job job, const PreviewOrder& order, const Names& documents, const fs::path& to,
                    Dialogs* person = nullptr) {
    CreateOrder orderOfRun = OrderOfRun(order, documents);
    orderOfRun.dialogs = person;
    CreateRun run(job, std::move(orderOfRun));
    run.Produce();
    if (!to.empty()) run.Save(TextOf(to));
    return TextOfDocument(run.session().WordDoc);
}

/// The same document typed of signs; empty where it does not take them.
std::u32string TypeSigns(const Job& job, const PreviewOrder& order, const Names& documents) {
    try {
        return Type(WithSigns(job), order, documents, {});
    } catch (const CreateError&) {
        return {};
    }
}

/// The values as CREATE types from them.
Job TypedJob(const PreviewOrder& order) {
    Job job = order.job;
    if (!ReadDate(job.D(field::ProrationDate)))
        job.SetValue(field::ProrationDate, FieldMarker(field::ProrationDate));
    NormalisedValues(job, order.today);
    return job;
}

bool CanType(const Job& job, const PreviewOrder& order, const std::string& document) {
    try {
        Type(job, order, {document}, {});
        return true;
    } catch (const CreateError&) {
        return false;
    }
}

}  // namespace

Preview MakePreview(const PreviewOrder& order, const fs::path& to) {
    const Job job = TypedJob(order);
    Names documents = order.document.empty() ? order.JobList : Names{order.document};
    Preview made;
    try {
        made.text = Type(job, order, documents, to);
    } catch (const CreateError&) {
        for (std::string& document : documents) {
            if (CanType(job, order, document)) continue;
            made.missing.push_back(document);
            document = kNewDocument;
        }
        if (made.missing.empty() || made.missing.size() == documents.size()) throw;
        made.text = Type(job, order, documents, to);
    }
    made.values = FindValues(job, made.text, TypeSigns(job, order, documents));
    for (int n = 0; n <= kFields; ++n) made.texts.push_back(job.D(n));
    return made;
}

std::vector<TypedEntry> TypeEach(const PreviewOrder& order) {
    const Job job = TypedJob(order);
    const OpenMarkers markers(job);
    std::vector<TypedEntry> each;
    for (const std::string& document : order.JobList) {
        TypedEntry& typed = each.emplace_back();
        ScriptedDialogs person;
        try {
            typed.text = Type(job, order, {document}, {}, &person);
            typed.open = markers.In(typed.text);
        } catch (const CreateError& failure) {
            typed.failure = failure.what();
        }
        for (const ScriptedDialogs::Record& box : person.Shown())
            if (box.buttons.size() > 1) typed.questions.push_back(box.text);
    }
    return each;
}

}  // namespace quillmark

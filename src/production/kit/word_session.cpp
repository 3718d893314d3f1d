#include "production/kit/word_session.h"

namespace quillmark {

using word::InchesToPoints;

namespace {

// Typing with the checkers running is slow, and leaves their red marks in the user's view.
void TurnOffCheckers(WordSession& session) {
    const word::Options& options = session.WordApp.Options;
    if (options.CheckSpellingAsYouType) {
        session.SpellingWasOn = true;
        options.CheckSpellingAsYouType = false;
    }
    if (options.CheckGrammarAsYouType) {
        session.GrammarWasOn = true;
        options.CheckGrammarAsYouType = false;
    }
}

void SetDefaultPage(const word::Document& document) {
    document.DefaultTabStop = InchesToPoints(0.25);
    document.PageSetup.LeftMargin = 45;
    document.PageSetup.RightMargin = 45;
    document.PageSetup.TopMargin = 45;
    document.PageSetup.BottomMargin = 45;
    document.PageSetup.HeaderDistance = InchesToPoints(0.5);
    document.PageSetup.FooterDistance = InchesToPoints(0.25);
}

void KeepListParagraphStyle(WordSession& session) {
    try {
        session.ListParagraphStyle = session.WordDoc.Styles("List Paragraph");
        session.ListParagraphStyle.NoSpaceBetweenParagraphsOfSameStyle = false;
    } catch (const word::AutomationError& failure) {
        if (failure.number() != word::error::kNoSuchElement) throw;
    }
}

void AddListTemplates(WordSession& session) {
    session.ListTemplateSimple = session.WordDoc.ListTemplates.Add(false);
    session.ListTemplateSimple.ListLevels(1).NumberStyle = word::NumberArabic;
    session.ListTemplateSimple.ListLevels(1).NumberFormat = "%1.";

    session.ListTemplateOutline = session.WordDoc.ListTemplates.Add(true);
    session.ListTemplateOutline.ListLevels(1).NumberStyle = word::NumberArabic;
    session.ListTemplateOutline.ListLevels(2).NumberStyle = word::NumberLowercaseLetter;
    session.ListTemplateOutline.ListLevels(3).NumberStyle = word::NumberLowercaseRoman;
    session.ListTemplateOutline.ListLevels(1).NumberFormat = "%1.";
    session.ListTemplateOutline.ListLevels(2).NumberFormat = "%2.";
    session.ListTemplateOutline.ListLevels(3).NumberFormat = "%3.";
}

}  // namespace

void SetUpWordSession(WordSession& session) {
    TurnOffCheckers(session);
    session.WordDoc = session.WordApp.Documents.Add();
    session.WordSel = session.WordApp.Selection;
    SetDefaultPage(session.WordDoc);
    session.WordSel.Paragraphs.SpaceAfter = 0;
    session.WordSel.Paragraphs.LineSpacing = 12;
    KeepListParagraphStyle(session);
    AddListTemplates(session);
}

void RestoreCheckers(WordSession& session) {
    if (session.SpellingWasOn) session.WordApp.Options.CheckSpellingAsYouType = true;
    if (session.GrammarWasOn) session.WordApp.Options.CheckGrammarAsYouType = true;
}

}  // namespace quillmark

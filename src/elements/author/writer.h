#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "core/assembled_element.h"
#include "core/instrumented.h"
#include "core/output_sink.h"
#include "core/output_template.h"
#include "core/text.h"
#include "elements/author/persons.h"
#include "elements/author/style.h"

/// From persons to text. What is written here reports as procedures of the element that writes.
namespace quorvel {

/// The form of a list beside reference list and note.
struct AuthorForm {
    /// The thresholds of the minimal form or of the citation count.
    bool isMinimal = false;
    bool isCitation = false;
    /// First names are written in full, whatever the style.
    bool forceNoInitials = false;
};

/// Writes persons in a style: fills the slots of the author's assembly and has it written. Lives for one
/// output and reports in the element's name.
class AuthorWriter final : public AssembledElement {
public:
    /// @param assembly laid out for the style
    /// @param maker a sink from which others are made
    AuthorWriter(const Instrumented& element, AuthorStyleRef style, std::shared_ptr<const AuthorPersons> persons,
                 std::shared_ptr<outputTemplate> assembly, OutputSinkRef maker, AuthorForm form = {});

    using AssembledElement::assembledText;
    void write(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion) override;
    bool fillSlots(bool isFootnote, std::vector<Text>& items, std::vector<OutputSinkRef>& formattedItems,
                   bool shortenedVersion) override;

    TextView className() const override { return mElement.className(); }
    void dumpVariables(VBWPROTECTOR& report) const override { mElement.dumpVariables(report); }

private:
    std::shared_ptr<outputTemplate> assembly() const override { return mAssembly; }
    const AuthorOptions& options() const { return mStyle->options; }
    bool writesSemicolons() const;
    bool reversesFirst(bool isFootnote) const;
    bool writesEllipses() const;
    void ToArray(bool isFootnote, std::vector<Text>& items, bool shortenedVersion);
    void writePersons(bool isFootnote, std::vector<Text>& items, bool shortenedVersion, std::int16_t last);
    // The text of a person; it stands until the next one is asked for.
    const Text& toStringDiscussant(bool isFootnote, bool shortenedVersion);
    const Text& toStringFirstAuthor(bool isFootnote, bool shortenedVersion);
    const Text& toStringAuthor(std::int16_t index, bool Reverse, bool useFirst);
    void writeName(const AuthorRecord& person, bool reverse, bool useFirst);
    void toStringAuthorFirst(TextView firstNames);
    void addPostFix(TextView postFix, bool forceUseSpace);

    const Instrumented& mElement;
    AuthorStyleRef mStyle;
    std::shared_ptr<const AuthorPersons> mPersons;
    std::shared_ptr<outputTemplate> mAssembly;
    OutputSinkRef mMaker;
    bool mIsMinimal;
    bool mIsCitation;
    bool mInitialsOnly;
    std::int16_t mTrigger;
    std::int16_t mKept;
    // One text for all persons, so that few need memory of their own.
    Text mName;
};

/// The tag that tells what the persons are: "eds.", "ed. and trans."; empty for authors.
Text editorTag(const Instrumented& element, const AuthorStyle& style, const AuthorPersons& persons);

/// Commas beside a group author become semicolons, unless the text holds "et al" or the style's words for that.
Text convertCommaToSemicolon(const Instrumented& element, const AuthorPersons& persons, const AuthorWording& wording,
                             TextView text);

}  // namespace quorvel

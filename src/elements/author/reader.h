#pragma once

#include <vector>

#include "core/instrumented.h"
#include "core/text.h"
#include "elements/author/list_text.h"
#include "elements/author/persons.h"

/// From a text to persons. The steps are free functions on what stands below; each reports as a procedure of
/// the element that reads.
namespace quorvel {

/// Who reads, and how.
struct AuthorReader {
    /// Under its name the steps report.
    const Instrumented& element;
    /// A bracketed part of a name belongs to the first names.
    bool bracketIsForFirstName = false;
};

/// A text on its way to persons.
struct AuthorReading {
    const AuthorReader& reader;
    /// The authors of the reference before, for a dash that stands for them.
    TextView previousStr;
    /// What was read so far.
    AuthorPersons& persons;
    /// What is still to be read.
    authorwords::AuthorListText list;

    const Instrumented& element() const { return reader.element; }
};

/// Reads a list of persons out of a finished reference.
/// @param text is left with what belongs to other elements
/// @param residueAlreadyRemoved nothing in the text belongs to other elements
/// @param persons cleared
void readPersons(const AuthorReader& reader, Text& text, TextView previousStr, bool residueAlreadyRemoved,
                 AuthorPersons& persons);

/// Replaces the persons by those of the author form's rows: "Last, First, Postfix", or a name in direct order.
/// Empty rows are skipped.
void readRows(const AuthorReader& reader, const std::vector<Text>& rows, AuthorPersons& persons);

}  // namespace quorvel

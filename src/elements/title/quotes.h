#pragma once

#include "core/text.h"

namespace quorvel::titlequotes {

/// The double quotation marks inside a title that gets some itself become single ones (MLA 7 3.7.7, Turabian 7 25.2.1).
Text withSingleQuotationMarks(TextView text);

/// The reverse, for a title that stood in quotation marks and loses them: pairs of curly single marks around words
/// become double ones; an apostrophe is no mark.
Text withDoubleQuotationMarks(TextView text);

/// A title in double quotation marks, those inside it single.
Text quoted(TextView title);

}  // namespace quorvel::titlequotes

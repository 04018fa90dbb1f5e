#include "elements/issue/issue.h"

#include "element_bench.h"

namespace quorvel::bench {
namespace {

auto turabianIssue() {
    return parseAndWrite(elementWith<OutputTemplateIssue>(IssueOptions{3, u"Special issue,Supplement"}));
}

const bool kTexts = benchTexts("parseAndFormatIssue", turabianIssue,
                               {{"number", u"no. 4"},
                                {"supplement", u"4 (suppl 2)"},
                                {"specialIssue", u"Identities. Ed. Anthony Appiah. Spec. issue"}});
const bool kGrowth = benchGrowth("issuePerCharacter", turabianIssue,
                                 {{.piece = u"4, xsupplement ed. special issu", .end = u", special issue"}});

}  // namespace
}  // namespace quorvel::bench

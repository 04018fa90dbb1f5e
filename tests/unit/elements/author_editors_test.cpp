#include <gtest/gtest.h>

#include "support/author_reading.h"
#include "support/shown.h"

namespace quorvel {
namespace {

TEST(AuthorEditors, TagsAreReadAndWrittenInEachStyle) {
    struct Case {
        TextView text;
        bool isEditor;
        bool isCompiler;
        bool isTranslator;
        TextView mla;
        TextView apa;
        TextView ama;
    };
    constexpr Case kCases[] = {
        {u"Smith, John, ed.", true, false, false, u"Smith, John, ed.", u"Smith, J. (Ed.)", u"Smith J, ed"},
        {u"Smith, J. (Ed.)", true, false, false, u"Smith, J., ed.", u"Smith, J. (Ed.)", u"Smith J, ed"},
        {u"Smith, J., & Doe, A. (Eds.)", true, false, false, u"Smith, J., and A. Doe, eds.",
         u"Smith, J., & Doe, A. (Eds.)", u"Smith J, Doe A, eds"},
        {u"Smith J, Doe A, eds", true, false, false, u"Smith, J., and A. Doe, eds.", u"Smith, J., & Doe, A. (Eds.)",
         u"Smith J, Doe A, eds"},
        {u"Smith, John, comp.", false, true, false, u"Smith, John, comp.", u"Smith, J. (Ed.)", u"Smith J, ed"},
        {u"Smith, John, and Ann Doe, trans.", false, false, true, u"Smith, John, and Ann Doe, trans.",
         u"Smith, J., & Doe, A. (Trans.)", u"Smith J, Doe A, trans"},
        {u"Smith, John, ed. and trans.", true, false, true, u"Smith, John, ed. and trans.", u"Smith, J. (Ed. & Trans.)",
         u"Smith J, ed and trans"},
        {u"Smith, J. (Ed. & Trans.)", true, false, true, u"Smith, J., ed. and trans.", u"Smith, J. (Ed. & Trans.)",
         u"Smith J, ed and trans"},
        {u"Smith, John, guest ed.", true, false, false, u"Smith, John, ed.", u"Smith, J. (Ed.)", u"Smith J, ed"},
        {u"Smith, John, et al., eds.", true, false, false, u"Smith, John, et al., eds.", u"Smith, J. (Eds.)",
         u"Smith J, et al., eds"},
        // Names.
        {u"Smith, Ed", false, false, false, u"Smith, Ed", u"Smith, E.", u"Smith E"},
        {u"Smith ED", false, false, false, u"Smith, E. D.", u"Smith, E. D.", u"Smith ED"},
    };
    const auto presets = test::authorPresets();
    for (const Case& c : kCases) {
        SCOPED_TRACE(shown(c.text));
        const auto author = test::authorWith(presets[0].options);
        test::read(*author, c.text);
        EXPECT_EQ(author->Anthologies(OutputTemplateAuthor::kEditor), c.isEditor);
        EXPECT_EQ(author->Anthologies(OutputTemplateAuthor::kCompiler), c.isCompiler);
        EXPECT_EQ(author->Anthologies(OutputTemplateAuthor::kTranslator), c.isTranslator);
        EXPECT_EQ(author->toString(false, false), c.mla);
        author->Reset(test::apaAuthorOptions());
        EXPECT_EQ(author->toString(false, false), c.apa);
        author->Reset(test::amaAuthorOptions());
        EXPECT_EQ(author->toString(false, false), c.ama);
        EXPECT_FALSE(contains(author->toString(false, true), u"ed")) << "the shortened form has no tag";
    }
}

TEST(AuthorEditors, FlagsCanBeSetByTheForm) {
    const auto author = test::authorWith(test::mlaAuthorOptions());
    author->authors({u"Smith, John", u"Doe, Ann"});
    author->Anthologies(OutputTemplateAuthor::kCompiler, true);
    EXPECT_EQ(author->editor(), u"comps.");
    author->Anthologies(OutputTemplateAuthor::kCompiler, false);
    EXPECT_EQ(author->editor(), u"");
    author->Anthologies(3, true);
    author->Anthologies(-1, true);
    EXPECT_FALSE(author->Anthologies(3));
    EXPECT_EQ(author->editor(), u"");
}

}  // namespace
}  // namespace quorvel

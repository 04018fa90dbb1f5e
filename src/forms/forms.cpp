#include "forms/forms.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "forms/author_form.h"
#include "forms/date_time_form.h"
#include "forms/edition_form.h"
#include "forms/editor_form.h"
#include "forms/issue_form.h"
#include "forms/keywords_form.h"
#include "forms/multipart_work_form.h"
#include "forms/newspaper_title_form.h"
#include "forms/notes_form.h"
#include "forms/online_form.h"
#include "forms/page_form.h"
#include "forms/place_form.h"
#include "forms/publication_medium_form.h"
#include "forms/publisher_form.h"
#include "forms/refers_to_form.h"
#include "forms/title_form.h"
#include "forms/year_form.h"

namespace quorvel::forms {

namespace {

constexpr std::int16_t kNone = -1;

struct FormClass {
    /// The element type codes for which it is the form.
    std::array<std::int16_t, 3> types;
    std::shared_ptr<Form> (*create)();
};

template <class T>
std::shared_ptr<Form> create() {
    return std::make_shared<T>();
}

// Every form, one a line.
// clang-format off
constexpr FormClass kForms[] = {
    {{0, kNone, kNone}, create<AuthorForm>},
    {{1, 2, 3}, create<TitleForm>},
    {{4, kNone, kNone}, create<NewspaperTitleForm>},
    {{5, kNone, kNone}, create<PublisherForm>},
    {{6, kNone, kNone}, create<YearForm>},
    {{7, kNone, kNone}, create<PageForm>},
    {{8, kNone, kNone}, create<EditionForm>},
    {{9, kNone, kNone}, create<EditorForm>},
    {{10, kNone, kNone}, create<MultipartWorkForm>},
    {{11, kNone, kNone}, create<IssueForm>},
    {{12, kNone, kNone}, create<RefersToForm>},
    {{13, kNone, kNone}, create<OnlineForm>},
    {{14, kNone, kNone}, create<KeywordsForm>},
    {{15, kNone, kNone}, create<PlaceForm>},
    {{16, kNone, kNone}, create<PublicationMediumForm>},
    {{17, kNone, kNone}, create<DateTimeForm>},
    {{18, kNone, kNone}, create<NotesForm>},
};
// clang-format on

const FormClass* classWith(std::int16_t whichType) {
    const auto* const found = std::find_if(std::begin(kForms), std::end(kForms), [&](const FormClass& row) {
        return whichType != kNone && std::find(row.types.begin(), row.types.end(), whichType) != row.types.end();
    });
    return found != std::end(kForms) ? found : nullptr;
}

}  // namespace

std::shared_ptr<Form> make(std::int16_t whichType) {
    const FormClass* const found = classWith(whichType);
    return found != nullptr ? found->create() : nullptr;
}

std::int16_t classOf(std::int16_t whichType) {
    const FormClass* const found = classWith(whichType);
    return found != nullptr ? found->types.front() : kNone;
}

}  // namespace quorvel::forms

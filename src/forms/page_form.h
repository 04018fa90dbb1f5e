#pragma once

#include "forms/form.h"

namespace quorvel::forms {

/// Edits the page (element type code 7): a box for the page or range, what kind of locator it is, and the notes on it.
class PageForm final : public Form {
public:
    PageForm();

    TextView className() const override { return u"PageForm"; }
    void dumpVariables(VBWPROTECTOR& report) const override { dumpProtocol(report); }

private:
    void fill(TextView parentText, TextView secondaryText) override;
    void collect(bool isModelPreview) override;
    void boxChanged(Control& box) override;
    void boxLeft(Control& box) override;

    void showNote(TextView note);
    void readTyped(Control& page);

    /// What the page's box showed when the element had read it.
    Text mPage;
};

}  // namespace quorvel::forms

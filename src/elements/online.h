#pragma once

#include <cstdint>

#include "core/instrumented.h"
#include "core/options.h"
#include "core/output_sink.h"
#include "core/text.h"

namespace quorvel {

/// What a style says of online sources.
struct OnlineOptions {
    /// A database is written as a statement: "Retrieved from PsycINFO database".
    bool SupportsWebsiteAsDatabase = false;
    /// So is an ERIC document: "Retrieved from ERIC database. (ED482912)".
    bool SupportsWebsiteAsEric = false;
    /// "Retrieved from " stands before an address.
    bool UsesRetrievedPrefix = false;
    /// What stands before a DOI: "doi:", "https://doi.org/".
    Text DOIPrefix;
};

inline constexpr std::tuple kOnlineOptions{
    Option{u"SupportsWebsiteAsDatabase", &OnlineOptions::SupportsWebsiteAsDatabase},
    Option{u"SupportsWebsiteAsEric", &OnlineOptions::SupportsWebsiteAsEric},
    Option{u"UsesRetrievedPrefix", &OnlineOptions::UsesRetrievedPrefix},
    Option{u"DOIPrefix", &OnlineOptions::DOIPrefix},
};

/// Where a work was found online (element type code 13).
///
///   accepted text                                               kind          Online
///   http://www.example.org/a.html; www.example.org/a.html;      address       www.example.org/a.html
///   <http://www.example.org/a.html>
///   example.org/a                                               address       example.org/a
///   doi:10.1000/182; DOI: 10.1000/182; 10.1000/182;             DOI           10.1000/182
///   http://dx.doi.org/10.1000/182; https://doi.org/10.1000/182
///   PsycINFO database; database: PsycINFO; JSTOR                database      PsycINFO; JSTOR
///   PsycINFO database. (Accession No. 1)                        database      PsycINFO; the text keeps the number
///   ERIC database. (ED482912); ERIC ED 482 912; ED482912        ERIC number   ED482912
///   anything else                                               plain         as it stands
///
/// Each may have "Retrieved from" before it, also with a date, or a mark that it is an abstract ("Abstract:",
/// "Abstract retrieved from"), and an address or a DOI a statement of access behind or before it.
///
/// Styles: MLA 7 5.6.1, 5.6.4, APA 6 6.31-32, 7.01, Turabian 7 17.1.10, AMA 10 3.15.
class OutputTemplateOnline final : public Instrumented {
public:
    /// The source names a database. Set it behind `Parse` where the host knows better.
    bool isDatabase = false;

    /// Keeps a clone of the sink for `toString` as RTF.
    void Initialize(const OutputSinkRef& formattedStr);

    /// The options of the style in force; the parsed source stays.
    void Reset(const OnlineOptions& options);

    /// The address without "http://" or "https://", the DOI without what announces it, the name of the database or the
    /// ERIC number.
    Text Online() const;

    bool SupportsWebsiteAsDatabase() const;
    bool SupportsWebsiteAsEric() const;

    /// Whether the source is an address.
    bool isURL() const;
    /// Whether the source is an ERIC number.
    bool isEric() const;

    /// Adds `toString` to the sink in plain font.
    void ToFormattedString(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion) const;

    /// The source as the style writes it, plain or as RTF; the same in shortened form. Only an abstract differs in
    /// notes.
    Text toString(bool isFootnote, bool shortenedVersion, bool isRTF) const;

    /// Reads the source out of a finished reference's text.
    /// @param text keeps dates and statements of access
    /// @param previousStr not used
    void Parse(Text& text, TextView previousStr);

    TextView className() const override { return u"OutputTemplateOnline"; }
    void dumpVariables(VBWPROTECTOR& report) const override;

private:
    bool parseEric(TextView text);
    bool parseAndRemoveDOI(Text& text);
    bool isURLImpl(TextView text) const;
    bool isURLPostfix(TextView text) const;
    bool isDOI(TextView text) const;

    bool parseSource(Text& text);
    bool parseDatabase(Text& text);
    bool parseAddress(Text& text);
    bool isStatement() const;
    Text source() const;
    Text formatted(bool isFootnote) const;

    Text mOnline;
    bool mIsEric = false;
    OnlineOptions mOptions;
    bool mIsURL = false;
    bool mIsDOI = false;
    bool mIsHTTPS = false;
    OutputSinkRef mFormattedStr;
    bool mIsAbstract = false;
    bool mHasOtherScheme = false;
};

}  // namespace quorvel

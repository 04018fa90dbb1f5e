#include <gtest/gtest.h>

#include "support/author_reading.h"
#include "support/rows.h"
#include "support/shown.h"

namespace quorvel {
namespace {

struct Case {
    TextView text;
    TextView persons;
};

/// Each list is read alike whatever style is in force.
void expectReadings(const std::vector<Case>& cases) {
    for (const test::AuthorPreset& preset : test::authorPresets()) {
        const auto author = test::authorWith(preset.options);
        for (const Case& c : cases) {
            EXPECT_EQ(test::read(*author, c.text), c.persons) << shown(preset.name);
        }
    }
}

TEST(AuthorNames, ParticlesBelongToTheLastName) {
    // "Maria de Lourdes" is a first name.
    // He goes by his second name, which is a particle elsewhere.
    const auto kCases = rows<Case>(
        u"M. A. van der Meer => van der Meer|M. A. || van der Meer, M. A. => van der Meer|M. A. || "
        u"van der Meer MA => van der Meer|M. A. || van der Meer => van der Meer || "
        u"Daniel Aguirre de Carcer => de Carcer|Daniel Aguirre || Marina De Vos => De Vos|Marina || "
        u"Ursula K. Le Guin => Le Guin|Ursula K. || Sophie in 't Veld => in 't Veld|Sophie || "
        u"Sophie in \u2019t Veld => in \u2019t Veld|Sophie || "
        u"R. de Ruyter van Steveninck => de Ruyter van Steveninck|R. || "
        u"N. Neuenschwander-el Massioui => Neuenschwander-el Massioui|N. || Jill St. John => St. John|Jill || "
        u"Quoc Le => Le|Quoc || Maria de Lourdes Silva => Silva|Maria de Lourdes || "
        u"María de la Luz Hernández => Hernández|María de la Luz || Simone de Beauvoir => Beauvoir|Simone de || "
        u"Beauvoir, Simone de => Beauvoir|Simone de || W. Ben Towne => Towne|W. Ben || "
        u"Russo, R. de F., and A. de F. S. M. Russo => Russo|R. de F.; de F. S. M. Russo|A.");
    expectReadings(kCases);
}

TEST(AuthorNames, TwoLastNamesStayTogether) {
    const auto kCases = rows<Case>(
        u"José Ortega y Gasset => Ortega y Gasset|José || António Costa e Silva => Costa e Silva|António || "
        u"Ludwig Mies van der Rohe => Mies van der Rohe|Ludwig || "
        u"Pierre Teilhard de Chardin => Teilhard de Chardin|Pierre || "
        u"Laura E. Beane Freeman => Beane Freeman|Laura E. || Adolfo Sánchez Vázquez => Sánchez Vázquez|Adolfo || "
        u"Elias Chaibub Neto => Chaibub Neto|Elias || García Márquez, Gabriel => García Márquez|Gabriel || "
        u"García Márquez, Gabriel José, and Mario Vargas Llosa => García Márquez|Gabriel José; Vargas Llosa|Mario");
    expectReadings(kCases);
}

TEST(AuthorNames, ArabicAndEastAsianNames) {
    const auto kCases = rows<Case>(
        u"Ibn Khaldun => Ibn Khaldun || Muhammad ibn Musa al-Khwarizmi => ibn Musa al-Khwarizmi|Muhammad || "
        u"Tawfiq al-Hakim => al-Hakim|Tawfiq || Hakim, Tawfiq al- => al-Hakim|Tawfiq || "
        u"Medici, Lorenzo de\u2019 => de\u2019 Medici|Lorenzo || Chao Wu-chi => Chao|Wu-chi || "
        u"Kurosawa Akira => Kurosawa|Akira || Akira Kurosawa => Kurosawa|Akira || Kurosawa => Kurosawa || "
        u"\u738B\u5C0F\u660E => \u738B\u5C0F\u660E");
    expectReadings(kCases);

    const auto author = test::authorWith(test::mlaAuthorOptions());
    test::read(*author, u"Kurosawa");
    EXPECT_TRUE(author->isJapaneseOrChineseLastName());
    test::read(*author, u"Kurosawa, Akira");
    EXPECT_FALSE(author->isJapaneseOrChineseLastName());
    test::read(*author, u"Smith");
    EXPECT_FALSE(author->isJapaneseOrChineseLastName());
}

TEST(AuthorNames, InitialsAreSpreadWithTheirStops) {
    // Sounds of two letters.
    // Initials that spell other words.
    const auto kCases = rows<Case>(
        u"Fromhold AT Jr => Fromhold|A. T.|Jr. || Kuik C-C, Meyer J-JCh => Kuik|C.-C.; Meyer|J.-J. Ch. || "
        u"Fromhold, A.T. => Fromhold|A. T. || "
        u"Cliff, Jacqueline M, Stefan H E Kaufmann, and A de Polignac => Cliff|Jacqueline M.; Kaufmann|Stefan H. E.; "
        u"de Polignac|A. || "
        u"J.-P. Sartre => Sartre|J.-P. || É. Durkheim and Ł. Kaczmarek => Durkheim|É.; Kaczmarek|Ł. || "
        u"Durkheim É, Kaczmarek Ł => Durkheim|É.; Kaczmarek|Ł. || "
        u"John F Kennedy and Robert F Kennedy => Kennedy|John F.; Kennedy|Robert F. || "
        u"Edward H Shortliffe and Bruce G. Buchanan => Shortliffe|Edward H.; Buchanan|Bruce G. || "
        u"Gritsenko YuI, Yakovlev AYa => Gritsenko|Yu. I.; Yakovlev|A. Ya. || CO Callender => Callender|C. O. || "
        u"O’Mara SM, Rolls ET, Jones ED, Smith DE => O’Mara|S. M.; Rolls|E. T.; Jones|E. D.; Smith|D. E. || "
        u"Smith JR, Brown IV => Smith|J. R.; Brown|I. V. || "
        u"SMITH, JOHN, AND VAN DER MEER, JAN => SMITH|JOHN; VAN DER MEER|JAN");
    expectReadings(kCases);
}

TEST(AuthorNames, PostfixesAfterACommaABlankOrInitials) {
    const auto kCases = rows<Case>(
        u"Fromhold, A. T., Jr. => Fromhold|A. T.|Jr. || A. T. Fromhold Jr. => Fromhold|A. T.|Jr. || "
        u"A. T. Fromhold, Jr., and K. Smith => Fromhold|A. T.|Jr.; Smith|K. || "
        u"Gates, Henry Louis Jr., and Cornel West => Gates|Henry Louis|Jr.; West|Cornel || "
        u"Hemphill JC III, Smith J => Hemphill|J. C.|III; Smith|J. || "
        u"Rockefeller, John D., IV => Rockefeller|John D.|IV || "
        u"Rockefeller, John D., VI => Rockefeller|John D.|VI || "
        u"Conway, L. G., III, & Gornick, L. J. => Conway|L. G.|III; Gornick|L. J. || "
        u"John D. Rockefeller III => Rockefeller|John D.|III || "
        u"Daumé, Hal III, and Daniel Marcu => Daumé|Hal|III; Marcu|Daniel || "
        u"Daumé III, Hal, and Daniel Marcu => Daumé|Hal|III; Marcu|Daniel || "
        u"Daumé H III, Marcu D => Daumé|H.|III; Marcu|D. || Paul III Tornetta => Tornetta|Paul|III || "
        u"von Hicks, Michael III => von Hicks|Michael|III || Smith, John A., PhD => Smith|John A.|PhD || "
        u"Smith, MD => Smith|M. D. || Smith CC, Jones M, Brown D => Smith|C. C.; Jones|M.; Brown|D.");
    expectReadings(kCases);
}

TEST(AuthorNames, InstitutionsStayWhole) {
    // Two of them, and institutions beside persons.
    // Persons whose names are institutions' words.
    const auto kCases = rows<Case>(
        u"National Science and Technology Committee => National Science and Technology Committee || "
        u"Centers for Disease Control and Prevention => Centers for Disease Control and Prevention || "
        u"U.S. Department of Health, Education, and Welfare => U.S. Department of Health, Education, and Welfare || "
        u"Department for Environment, Food and Rural Affairs => Department for Environment, Food and Rural Affairs || "
        u"National Heart, Lung, and Blood Institute => National Heart, Lung, and Blood Institute || "
        u"Food and Agriculture Organization of the United Nations => Food and Agriculture Organization of the United "
        u"Nations || "
        u"The Center For Disease Control, CDC => The Center For Disease Control, CDC || "
        u"U.S. Department of Commerce, Bureau of the Census => U.S. Department of Commerce, Bureau of the Census || "
        u"University of California, Berkeley => University of California, Berkeley || "
        u"Adobe Systems, Inc. => Adobe Systems, Inc. || "
        u"Bill & Melinda Gates Foundation => Bill & Melinda Gates Foundation || "
        u"John D. and Catherine T. MacArthur Foundation => John D. and Catherine T. MacArthur Foundation || "
        u"The New Yorker => The New Yorker || UNESCO => UNESCO || "
        u"Doctors Without Borders => Doctors Without Borders || "
        u"United States. Environmental Protection Agency => United States. Environmental Protection Agency || "
        u"Great Britain. Home Office => Great Britain. Home Office || "
        u"Genco BA; Ebooks Corporation; eds. => Genco|B. A.; Ebooks Corporation || "
        u"Ernst & Young LLP => Ernst & Young LLP || "
        u"World Health Organization & World Bank => World Health Organization; World Bank || "
        u"World Bank and UNESCO => World Bank; UNESCO || "
        u"Smith, John, and World Health Organization => Smith|John; World Health Organization || "
        u"Smith, J., & World Bank => Smith|J.; World Bank || "
        u"Department of Energy and John Smith => Department of Energy; Smith|John || "
        u"Department of Energy, & Smith, J. => Department of Energy; Smith|J. || "
        u"Smith JA, Jones K; Childhood Asthma Management => Smith|J. A.; Jones|K.; Childhood Asthma Management || "
        u"Press WH, Church A => Press|W. H.; Church|A. || Press, W. H., & Bank, S. => Press|W. H.; Bank|S. || "
        u"William H. Press => Press|William H. || Church, Alonzo => Church|Alonzo || Emily Post => Post|Emily || "
        u"Donald Force => Force|Donald");
    expectReadings(kCases);
}

}  // namespace
}  // namespace quorvel

#include <gtest/gtest.h>

#include "support/author_reading.h"
#include "support/shown.h"

namespace quorvel {
namespace {

struct Case {
    TextView text;
    TextView persons;
};

/// Each list is read alike whatever style is in force.
template <std::size_t N>
void expectReadings(const Case (&cases)[N]) {
    for (const test::AuthorPreset& preset : test::authorPresets()) {
        const auto author = test::authorWith(preset.options);
        for (const Case& c : cases) {
            EXPECT_EQ(test::read(*author, c.text), c.persons) << shown(preset.name);
        }
    }
}

TEST(AuthorNames, ParticlesBelongToTheLastName) {
    constexpr Case kCases[] = {
        {u"M. A. van der Meer", u"van der Meer|M. A."},
        {u"van der Meer, M. A.", u"van der Meer|M. A."},
        {u"van der Meer MA", u"van der Meer|M. A."},
        {u"van der Meer", u"van der Meer"},
        {u"Daniel Aguirre de Carcer", u"de Carcer|Daniel Aguirre"},
        {u"Marina De Vos", u"De Vos|Marina"},
        {u"Ursula K. Le Guin", u"Le Guin|Ursula K."},
        {u"Sophie in 't Veld", u"in 't Veld|Sophie"},
        {u"Sophie in \u2019t Veld", u"in \u2019t Veld|Sophie"},
        {u"R. de Ruyter van Steveninck", u"de Ruyter van Steveninck|R."},
        {u"N. Neuenschwander-el Massioui", u"Neuenschwander-el Massioui|N."},
        {u"Jill St. John", u"St. John|Jill"},
        {u"Quoc Le", u"Le|Quoc"},
        // "Maria de Lourdes" is a first name.
        {u"Maria de Lourdes Silva", u"Silva|Maria de Lourdes"},
        {u"María de la Luz Hernández", u"Hernández|María de la Luz"},
        {u"Simone de Beauvoir", u"Beauvoir|Simone de"},
        {u"Beauvoir, Simone de", u"Beauvoir|Simone de"},
        // He goes by his second name, which is a particle elsewhere.
        {u"W. Ben Towne", u"Towne|W. Ben"},
        {u"Russo, R. de F., and A. de F. S. M. Russo", u"Russo|R. de F.; de F. S. M. Russo|A."},
    };
    expectReadings(kCases);
}

TEST(AuthorNames, TwoLastNamesStayTogether) {
    constexpr Case kCases[] = {
        {u"José Ortega y Gasset", u"Ortega y Gasset|José"},
        {u"António Costa e Silva", u"Costa e Silva|António"},
        {u"Ludwig Mies van der Rohe", u"Mies van der Rohe|Ludwig"},
        {u"Pierre Teilhard de Chardin", u"Teilhard de Chardin|Pierre"},
        {u"Laura E. Beane Freeman", u"Beane Freeman|Laura E."},
        {u"Adolfo Sánchez Vázquez", u"Sánchez Vázquez|Adolfo"},
        {u"Elias Chaibub Neto", u"Chaibub Neto|Elias"},
        {u"García Márquez, Gabriel", u"García Márquez|Gabriel"},
        {u"García Márquez, Gabriel José, and Mario Vargas Llosa", u"García Márquez|Gabriel José; Vargas Llosa|Mario"},
    };
    expectReadings(kCases);
}

TEST(AuthorNames, ArabicAndEastAsianNames) {
    constexpr Case kCases[] = {
        {u"Ibn Khaldun", u"Ibn Khaldun"},
        {u"Muhammad ibn Musa al-Khwarizmi", u"ibn Musa al-Khwarizmi|Muhammad"},
        {u"Tawfiq al-Hakim", u"al-Hakim|Tawfiq"},
        {u"Hakim, Tawfiq al-", u"al-Hakim|Tawfiq"},
        {u"Medici, Lorenzo de\u2019", u"de\u2019 Medici|Lorenzo"},
        {u"Chao Wu-chi", u"Chao|Wu-chi"},
        {u"Kurosawa Akira", u"Kurosawa|Akira"},
        {u"Akira Kurosawa", u"Kurosawa|Akira"},
        {u"Kurosawa", u"Kurosawa"},
        {u"\u738B\u5C0F\u660E", u"\u738B\u5C0F\u660E"},
    };
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
    constexpr Case kCases[] = {
        {u"Fromhold AT Jr", u"Fromhold|A. T.|Jr."},
        {u"Kuik C-C, Meyer J-JCh", u"Kuik|C.-C.; Meyer|J.-J. Ch."},
        {u"Fromhold, A.T.", u"Fromhold|A. T."},
        {u"Cliff, Jacqueline M, Stefan H E Kaufmann, and A de Polignac",
         u"Cliff|Jacqueline M.; Kaufmann|Stefan H. E.; de Polignac|A."},
        {u"J.-P. Sartre", u"Sartre|J.-P."},
        {u"É. Durkheim and Ł. Kaczmarek", u"Durkheim|É.; Kaczmarek|Ł."},
        {u"Durkheim É, Kaczmarek Ł", u"Durkheim|É.; Kaczmarek|Ł."},
        {u"John F Kennedy and Robert F Kennedy", u"Kennedy|John F.; Kennedy|Robert F."},
        {u"Edward H Shortliffe and Bruce G. Buchanan", u"Shortliffe|Edward H.; Buchanan|Bruce G."},
        // Sounds of two letters.
        {u"Gritsenko YuI, Yakovlev AYa", u"Gritsenko|Yu. I.; Yakovlev|A. Ya."},
        {u"CO Callender", u"Callender|C. O."},
        // Initials that spell other words.
        {u"O’Mara SM, Rolls ET, Jones ED, Smith DE", u"O’Mara|S. M.; Rolls|E. T.; Jones|E. D.; Smith|D. E."},
        {u"Smith JR, Brown IV", u"Smith|J. R.; Brown|I. V."},
        {u"SMITH, JOHN, AND VAN DER MEER, JAN", u"SMITH|JOHN; VAN DER MEER|JAN"},
    };
    expectReadings(kCases);
}

TEST(AuthorNames, PostfixesAfterACommaABlankOrInitials) {
    constexpr Case kCases[] = {
        {u"Fromhold, A. T., Jr.", u"Fromhold|A. T.|Jr."},
        {u"A. T. Fromhold Jr.", u"Fromhold|A. T.|Jr."},
        {u"A. T. Fromhold, Jr., and K. Smith", u"Fromhold|A. T.|Jr.; Smith|K."},
        {u"Gates, Henry Louis Jr., and Cornel West", u"Gates|Henry Louis|Jr.; West|Cornel"},
        {u"Hemphill JC III, Smith J", u"Hemphill|J. C.|III; Smith|J."},
        {u"Rockefeller, John D., IV", u"Rockefeller|John D.|IV"},
        {u"Rockefeller, John D., VI", u"Rockefeller|John D.|VI"},
        {u"Conway, L. G., III, & Gornick, L. J.", u"Conway|L. G.|III; Gornick|L. J."},
        {u"John D. Rockefeller III", u"Rockefeller|John D.|III"},
        {u"Daumé, Hal III, and Daniel Marcu", u"Daumé|Hal|III; Marcu|Daniel"},
        {u"Daumé III, Hal, and Daniel Marcu", u"Daumé|Hal|III; Marcu|Daniel"},
        {u"Daumé H III, Marcu D", u"Daumé|H.|III; Marcu|D."},
        {u"Paul III Tornetta", u"Tornetta|Paul|III"},
        {u"von Hicks, Michael III", u"von Hicks|Michael|III"},
        {u"Smith, John A., PhD", u"Smith|John A.|PhD"},
        {u"Smith, MD", u"Smith|M. D."},
        {u"Smith CC, Jones M, Brown D", u"Smith|C. C.; Jones|M.; Brown|D."},
    };
    expectReadings(kCases);
}

TEST(AuthorNames, InstitutionsStayWhole) {
    constexpr Case kCases[] = {
        {u"National Science and Technology Committee", u"National Science and Technology Committee"},
        {u"Centers for Disease Control and Prevention", u"Centers for Disease Control and Prevention"},
        {u"U.S. Department of Health, Education, and Welfare", u"U.S. Department of Health, Education, and Welfare"},
        {u"Department for Environment, Food and Rural Affairs", u"Department for Environment, Food and Rural Affairs"},
        {u"National Heart, Lung, and Blood Institute", u"National Heart, Lung, and Blood Institute"},
        {u"Food and Agriculture Organization of the United Nations",
         u"Food and Agriculture Organization of the United Nations"},
        {u"The Center For Disease Control, CDC", u"The Center For Disease Control, CDC"},
        {u"U.S. Department of Commerce, Bureau of the Census", u"U.S. Department of Commerce, Bureau of the Census"},
        {u"University of California, Berkeley", u"University of California, Berkeley"},
        {u"Adobe Systems, Inc.", u"Adobe Systems, Inc."},
        {u"Bill & Melinda Gates Foundation", u"Bill & Melinda Gates Foundation"},
        {u"John D. and Catherine T. MacArthur Foundation", u"John D. and Catherine T. MacArthur Foundation"},
        {u"The New Yorker", u"The New Yorker"},
        {u"UNESCO", u"UNESCO"},
        {u"Doctors Without Borders", u"Doctors Without Borders"},
        {u"United States. Environmental Protection Agency", u"United States. Environmental Protection Agency"},
        {u"Great Britain. Home Office", u"Great Britain. Home Office"},
        {u"Genco BA; Ebooks Corporation; eds.", u"Genco|B. A.; Ebooks Corporation"},
        {u"Ernst & Young LLP", u"Ernst & Young LLP"},
        // Two of them, and institutions beside persons.
        {u"World Health Organization & World Bank", u"World Health Organization; World Bank"},
        {u"World Bank and UNESCO", u"World Bank; UNESCO"},
        {u"Smith, John, and World Health Organization", u"Smith|John; World Health Organization"},
        {u"Smith, J., & World Bank", u"Smith|J.; World Bank"},
        {u"Department of Energy and John Smith", u"Department of Energy; Smith|John"},
        {u"Department of Energy, & Smith, J.", u"Department of Energy; Smith|J."},
        {u"Smith JA, Jones K; Childhood Asthma Management", u"Smith|J. A.; Jones|K.; Childhood Asthma Management"},
        // Persons whose names are institutions' words.
        {u"Press WH, Church A", u"Press|W. H.; Church|A."},
        {u"Press, W. H., & Bank, S.", u"Press|W. H.; Bank|S."},
        {u"William H. Press", u"Press|William H."},
        {u"Church, Alonzo", u"Church|Alonzo"},
        {u"Emily Post", u"Post|Emily"},
        {u"Donald Force", u"Force|Donald"},
    };
    expectReadings(kCases);
}

}  // namespace
}  // namespace quorvel

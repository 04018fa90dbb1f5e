#include "elements/title_words.h"

#include <algorithm>
#include <functional>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/letter_case.h"
#include "elements/title_names.h"
#include "elements/word_set.h"

namespace quorvel::titlewords {

namespace {

// The heading's small words. The list is exact: no other preposition belongs to it.
constexpr TextView kSmallWords =
    u"a an as at by in of on or so to and but for nor off out the yet amid from over with above about after below "
    u"under "
    u"before beside behind beyond during against beneath between without";

constexpr TextView kFunctionWords =
    u"across along among around down into near onto per since than that through throughout till toward towards until "
    u"up "
    u"upon versus via within is are was were be been am do does did can could may might must shall should will would "
    u"if when while where who whom whose which what why how not no it its it's he she we they you i me my our your his "
    u"her "
    u"their them us this these those there then vs v et al";

constexpr TextView kParticles = u"de di le der van von du";
constexpr TextView kForeignParticles = u"la las los del della des den dem das do da dos y e al el ibn bin al- ten ter";

constexpr TextView kSpeciesEpithets =
    u"albicans aeruginosa aegypti anthracis aureus burgdorferi carolinensis catus cerevisiae cholerae coli communis "
    u"davidiana difficile domestica domesticus elegans epidermidis erectus falciparum familiaris frugiperda fumigatus "
    u"gambiae gondii habilis influenzae japonica jejuni laevis leprae lupus lycopersicum mansoni melanogaster meliloti "
    u"mellifera monocytogenes musculus mutans neanderthalensis nigra norvegicus officinalis pallidum pneumoniae pombe "
    u"pylori pyogenes rerio rex sapiens sativa sativum sativus sinensis subtilis thaliana thermophilus trachomatis "
    u"trichocarpa tuberculosis tumefaciens typhimurium vivax vulgaris economicus faber ludens";

constexpr TextView kAbbreviations =
    u"vs v mr mrs ms dr st jr sr prof rev gen col capt lt sgt mt ft no nos vol vols pt ch fig ed eds al cf ca approx "
    u"dept "
    u"u.s.s u.s u.k h.m.s e.g i.e";

constexpr TextView kNameLeads =
    u"Saint St Mount Mt Fort Ft Mr Mrs Ms Dr Sir Dame Herr Frau San Santa Los Las Ibn Madame";
constexpr TextView kTitlesOfPersons =
    u"Captain Colonel Doctor Dona Duke Emperor Empress General Judge Justice Kaiser King Lady Lake Lord Miss Pope Port "
    u"President Prince Princess Professor Queen Senator Sultan Tsar Czar Uncle Aunt Don Cape Camp Point";

constexpr TextView kNameTails =
    u"River Rivers Valley Mountain Mountains Island Islands Bay Sea Ocean Desert Peninsula Basin Delta Canal Strait "
    u"Coast "
    u"Republic Federation Empire Kingdom Dynasty Revolution War Wars Conquest Pact Cathedral Abbey Railroad Highlands "
    u"Falls "
    u"Gorge Glacier Plateau Archipelago Creek Isles Channel County Prize Doctrine Accords Territory Hemisphere";
constexpr TextView kInstitutionTails =
    u"University College Institute Street Avenue Square Park Palace Castle Museum Harbor Harbour "
    u"Foundation Company Corporation Hall Medal Manifesto Constitution Observatory Bridge House";

constexpr TextView kOfLeads =
    u"Battle Treaty Siege University Gulf Strait Straits Isle Cape Archbishop Bishop Duke Duchess Earl Countess "
    u"Republic "
    u"Cathedral Archdiocese Province Peace Edict Council Commonwealth Bank";

constexpr TextView kDirections =
    u"North South East West Northeast Northwest Southeast Southwest Northern Southern Eastern Western Central";

constexpr TextView kLetterTakers =
    u"vitamin hepatitis influenza type group class plan part appendix level grade series category factor protein "
    u"schedule "
    u"section vitamins cyclosporin haemophilia hemophilia immunoglobulin";

constexpr TextView kOrganizationLeads =
    u"American National International Royal European British Canadian World Australian U.S";
constexpr TextView kOrganizationTails =
    u"Association Society Institute Academy Council Agency Organization Federation Union League Commission Bureau "
    u"Congress";

// "the Clean Air Act", "the Wellcome Trust Case Control Consortium".
constexpr TextView kTailsBehindArticle = u"Act Collaboration Consortium Commission Committee Convention";

constexpr TextView kInstrumentTails = u"Inventory Scale Scales Questionnaire Checklist Battery Index Matrices Survey";

constexpr TextView kCommonInVowel =
    u"placebo studio radio video audio photo ratio portfolio scenario embryo libido casino vitro vivo novo ego zero "
    u"hero echo "
    u"memo motto potato tomato tempo piano cello alibi alkali fungi stimuli foci nuclei alumni bacilli taxi menu tofu "
    u"emu guru "
    u"haiku auto banjo bamboo bravo buffalo calico cargo cello combo commando concerto condo credo crescendo curio "
    u"demo dildo "
    u"disco ditto domino dynamo embargo espresso euro fiasco folio ghetto gigolo gringo gusto halo hello inferno info "
    u"jumbo "
    u"kangaroo kilo lasso libretto limbo lingo logo macro maestro mango manifesto memento micro mosquito mulatto nano "
    u"neo "
    u"nitro octavo oratorio paparazzi peso pianissimo pinto polio pomo porno presto pro proviso pseudo pueblo ratio "
    u"rodeo "
    u"rhino shampoo solo soprano stereo stiletto stucco taboo tattoo tango tornado torpedo torso trio turbo tuxedo two "
    u"typo "
    u"undergo veto vertigo virago virtuoso volcano volvo voodoo who whoso yo-yo ago also do go no so to too into onto "
    u"cuckoo "
    u"hi ski quasi semi anti multi bi tri cacti loci radii syllabi termini hippocampi gyri sulci moduli magi literati "
    u"glitterati graffiti confetti spaghetti broccoli salami tsunami safari sushi kiwi chili yeti corgi okapi octopi "
    u"wasabi "
    u"thou you flu ecu tutu impromptu parvenu milieu adieu bayou caribou tiramisu desperado avocado bravado aficionado "
    u"stucco "
    u"lumbago indigo archipelago ego amigo allegro intaglio seraglio imbroglio pistachio braggadocio staccato vibrato "
    u"legato "
    u"castrato moderato esperanto pimento quarto sexto duo cameo mikado tobacco fresco alto contralto falsetto";

constexpr TextView kCommonInNameSuffix =
    u"academician aesthetician agrarian alien amphibian antiquarian apian arcadian artesian authoritarian avian "
    u"barbarian "
    u"bean beautician cean centenarian cetacean chean circadian civilian clean clinician collegian comedian "
    u"comprehensian "
    u"contrarian crustacean custodian dean dietician dietitian diluvian disciplinarian disciplinarian draconian "
    u"egalitarian electrician equalitarian equestrian esthetician fruitarian geriatrician glean grammarian guardian "
    u"herculean historian humanitarian latitudinarian lean lesbian librarian libertarian logician magician "
    u"majoritarian "
    u"mammalian marsupian mathematician mean median meridian metaphysician midian millenarian musician "
    u"nonagenarian obsidian obstetrician ocean octogenarian optician ovarian parliamentarian patrician pean pedestrian "
    u"pediatrician phonetician physician plebeian pluvian politician proletarian protean quotidian radian reptilian "
    u"rhetorician riparian ruffian saurian sean sectarian seminarian septuagenarian simian stean statistician "
    u"subterranean tactician technician technicians theologian thespian totalitarian tragedian trean trivian unclean "
    u"utilitarian vaudevillian vegetarian veterinarian vulgarian zillion antiutilitarian nonsectarian egalitarian "
    u"demean bemean skean jean praetorian communitarian equatorian cyclopean empyrean pean "
    u"cheese these obese diocese geese legalese journalese reese mayonnaise headachese archdiocese";

constexpr TextView kCommonPossessors =
    u"actor adult animal ant applicant architect artist author baby bachelor baker beast beginner bird body boss boy "
    u"bride "
    u"brother business butcher buyer candidate cat century chef child children citizen city clinician company computer "
    u"consumer cook country creature critic crow customer daughter day death devil doctor dog dragon earth editor "
    u"emperor "
    u"empire employee employer enemy engineer everyone everybody eye family farmer father fool friend gardener "
    u"gentleman "
    u"gentlemen giant girl goddess grandfather grandmother guide hacker hare heart heaven here hero hitchhiker home "
    u"host house human hunter husband individual infant insider it judge king kid kids lady lawyer leader learner let "
    u"life "
    u"lion listener liver lover magician maker maiden maid man manager marketer master matter men midsummer midwife "
    u"mind mistress moment monkey month moon morning mother mouse musician nation nature navigator neighbor neighbour "
    u"night nobody novel novelist nurse observer ocean omnivore carnivore one organization other outsider owner "
    u"painter parent patient "
    u"people "
    u"person philosopher physician pilgrim pilot player poet politician practitioner president prince prisoner "
    u"professor "
    u"programmer publisher queen reader researcher sailor scholar school scientist season self seller serpent servant "
    u"shepherd ship sister slave society soldier somebody someone son speaker spirit spring stranger student summer "
    u"sun "
    u"surgeon swan teacher that there therapist thief time today tomorrow tortoise town toddler translator traveler "
    u"traveller tree user victim viewer village visitor voter warrior watchman week what who widow wife winter witch "
    u"wolf "
    u"woman women worker world writer year yesterday handmaid handmaiden layman layperson investor educator conductor "
    u"carpenter builder baker butler captain chairman child collector connoisseur countryman craftsman creator dancer "
    u"designer director dreamer explorer faculty fisherman foreigner fox general golfer historian horseman ideal "
    u"immigrant infantry inventor journalist knight linguist mathematician merchant miller modeler naturalist newcomer "
    u"novice officer orphan peasant pirate planner plant practitioner priest prophet pupil sculptor seafarer singer "
    u"skeptic sorcerer squire state statistician storyteller survivor tailor tenant tiger trader turtle vampire";

using WordLists = std::span<const titlenames::WordList>;

WordSet setOf(WordLists lists, WordLists more = {}) {
    WordSet set;
    for (const WordLists& part : {lists, more}) {
        for (const titlenames::WordList& list : part) {
            set.add(list.words);
        }
    }
    return set;
}

using Phrases = std::unordered_map<Text, std::vector<Phrase>, WordHash, std::equal_to<>>;

void addPhrases(Phrases& phrases, WordLists lists, bool isWork) {
    for (const titlenames::WordList& list : lists) {
        TextView rest = list.words;
        while (!rest.empty()) {
            const std::size_t end = std::min(rest.find(u'|'), rest.size());
            const TextView text = rest.substr(0, end);
            rest.remove_prefix(std::min(end + 1, rest.size()));
            const auto blanks = std::count(text.begin(), text.end(), u' ');
            TextView first = before(text, u" ");
            if (endsWith(first, u"'s")) {
                first.remove_suffix(2);
            }
            phrases[toLower(first)].push_back({text, static_cast<std::size_t>(blanks) + 1, isWork});
        }
    }
}

Phrases allPhrases() {
    Phrases phrases;
    addPhrases(phrases, {titlenames::kPhrases, titlenames::kPhrasesCount}, false);
    addPhrases(phrases, {titlenames::kCommonWordNames, titlenames::kCommonWordNamesCount}, false);
    addPhrases(phrases, {titlenames::kWorks, titlenames::kWorksCount}, true);
    for (auto& [first, list] : phrases) {
        std::sort(list.begin(), list.end(), [](const Phrase& a, const Phrase& b) { return a.words > b.words; });
    }
    return phrases;
}

}  // namespace

bool isSmallWord(TextView word) {
    static const WordSet set(kSmallWords);
    return set.holds(word);
}

bool isFunctionWord(TextView word) {
    static const WordSet set(kFunctionWords);
    return isSmallWord(word) || set.holds(word);
}

bool isParticle(TextView word) {
    static const WordSet set(kParticles);
    return set.holds(word);
}

bool isForeignParticle(TextView word) {
    static const WordSet set(kForeignParticles);
    return set.holds(word);
}

bool isSpeciesEpithet(TextView word) {
    static const WordSet set(kSpeciesEpithets);
    return set.holds(word);
}

bool isAbbreviation(TextView word) {
    static const WordSet set(kAbbreviations);
    return set.holds(toLower(word));
}

bool isNameLead(TextView word) {
    static const WordSet set(kNameLeads);
    return set.holds(word);
}

bool isNameTail(TextView word) {
    static const WordSet set(kNameTails);
    return set.holds(word);
}

bool isTitleOfPerson(TextView word) {
    static const WordSet set(kTitlesOfPersons);
    return set.holds(word);
}

bool isInstitutionTail(TextView word) {
    static const WordSet set(kInstitutionTails);
    return set.holds(word);
}

bool isOfLead(TextView word) {
    static const WordSet set(kOfLeads);
    return set.holds(word);
}

bool isOrganizationLead(TextView word) {
    static const WordSet set(kOrganizationLeads);
    return set.holds(word);
}

bool isOrganizationTail(TextView word) {
    static const WordSet set(kOrganizationTails);
    return set.holds(word);
}

bool isTailBehindArticle(TextView word) {
    static const WordSet set(kTailsBehindArticle);
    return set.holds(word);
}

bool isInstrumentTail(TextView word) {
    static const WordSet set(kInstrumentTails);
    return set.holds(word);
}

bool isCommonInVowel(TextView word) {
    static const WordSet set(kCommonInVowel);
    return set.holds(word);
}

bool isDirection(TextView word) {
    static const WordSet set(kDirections);
    return set.holds(word);
}

bool takesLetter(TextView word) {
    static const WordSet set(kLetterTakers);
    return set.holds(toLower(word));
}

bool isCommonInNameSuffix(TextView word) {
    static const WordSet set(kCommonInNameSuffix);
    return set.holds(word);
}

bool isCommonPossessor(TextView word) {
    static const WordSet set(kCommonPossessors);
    return set.holds(word);
}

bool isPlace(TextView word) {
    static const WordSet set =
        setOf({titlenames::kPlaces, titlenames::kPlacesCount}, {titlenames::kRegions, titlenames::kRegionsCount});
    return set.holds(word);
}

bool isName(TextView word) {
    static const WordSet set =
        setOf({titlenames::kNames, titlenames::kNamesCount}, {titlenames::kEponyms, titlenames::kEponymsCount});
    return set.holds(word);
}

bool isGivenName(TextView word) {
    static const WordSet set = setOf({titlenames::kGivenNames, titlenames::kGivenNamesCount},
                                     {titlenames::kMoreGivenNames, titlenames::kMoreGivenNamesCount});
    return set.holds(word);
}

std::span<const Phrase> phrasesFrom(TextView firstWord) {
    static const Phrases phrases = allPhrases();
    const auto found = phrases.find(firstWord);
    return found != phrases.end() ? std::span<const Phrase>(found->second) : std::span<const Phrase>();
}

}  // namespace quorvel::titlewords

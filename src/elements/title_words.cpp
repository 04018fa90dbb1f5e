// The lists of words that are no names. A word may stand in several of them.

#include "elements/title_words.h"

namespace quorvel::titlewords {

namespace {

// clang-format off
constexpr WordList kWords[] = {
    // Capitalisation. These are in lower case and known in any letter case.
    // The heading's small words. The list is exact: no other preposition belongs to it.
    {kSmallWord,
     u"a an as at by in of on or so to and but for nor off out the yet amid from over with above about "
     u"after below under before beside behind beyond during against beneath between without"},
    {kFunctionWord,
     u"across along among around down into near onto per since than that through throughout till toward "
     u"towards until up upon versus via within is are was were be been am do does did can could may might "
     u"must shall should will would if when while where who whom whose which what why how not no it its "
     u"it's he she we they you i me my our your his her their them us this these those there then vs v et "
     u"al"},
    {kParticle,
     u"de di le der van von du"},
    {kForeignParticle,
     u"la las los del della des den dem das do da dos y e al el ibn bin al- ten ter"},
    {kStaysInHeading,
     u"vs v n et"},
    {kSpeciesEpithet,
     u"albicans aeruginosa aegypti anthracis aureus burgdorferi carolinensis catus cerevisiae cholerae coli "
     u"communis davidiana difficile domestica domesticus elegans epidermidis erectus falciparum familiaris "
     u"frugiperda fumigatus gambiae gondii habilis influenzae japonica jejuni laevis leprae lupus "
     u"lycopersicum mansoni melanogaster meliloti mellifera monocytogenes musculus mutans neanderthalensis "
     u"nigra norvegicus officinalis pallidum pneumoniae pombe pylori pyogenes rerio rex sapiens sativa "
     u"sativum sativus sinensis subtilis thaliana thermophilus trachomatis trichocarpa tuberculosis "
     u"tumefaciens typhimurium vivax vulgaris economicus faber ludens"},
    {kAbbreviation,
     u"vs v mr mrs ms dr st jr sr prof rev gen col capt lt sgt mt ft no nos vol vols pt ch fig ed eds al cf "
     u"ca approx dept u.s.s u.s u.k h.m.s e.g i.e"},
    {kLetterTaker,
     u"vitamin hepatitis influenza type group class plan part appendix level grade series category factor "
     u"protein schedule section vitamins cyclosporin haemophilia hemophilia immunoglobulin"},
    {kCommonInVowel,
     u"placebo studio radio video audio photo ratio portfolio scenario embryo libido casino vitro vivo novo "
     u"ego zero hero echo memo motto potato tomato tempo piano cello alibi alkali fungi stimuli foci nuclei "
     u"alumni bacilli taxi menu tofu emu guru haiku auto banjo bamboo bravo buffalo calico cargo cello "
     u"combo commando concerto condo credo crescendo curio demo dildo disco ditto domino dynamo embargo "
     u"espresso euro fiasco folio ghetto gigolo gringo gusto halo hello inferno info jumbo kangaroo kilo "
     u"lasso libretto limbo lingo logo macro maestro mango manifesto memento micro mosquito mulatto nano "
     u"neo nitro octavo oratorio paparazzi peso pianissimo pinto polio pomo porno presto pro proviso pseudo "
     u"pueblo ratio rodeo rhino shampoo solo soprano stereo stiletto stucco taboo tattoo tango tornado "
     u"torpedo torso trio turbo tuxedo two typo undergo veto vertigo virago virtuoso volcano volvo voodoo "
     u"who whoso yo-yo ago also do go no so to too into onto cuckoo hi ski quasi semi anti multi bi tri "
     u"cacti loci radii syllabi termini hippocampi gyri sulci moduli magi literati glitterati graffiti "
     u"confetti spaghetti broccoli salami tsunami safari sushi kiwi chili yeti corgi okapi octopi wasabi "
     u"thou you flu ecu tutu impromptu parvenu milieu adieu bayou caribou tiramisu desperado avocado "
     u"bravado aficionado stucco lumbago indigo archipelago ego amigo allegro intaglio seraglio imbroglio "
     u"pistachio braggadocio staccato vibrato legato castrato moderato esperanto pimento quarto sexto duo "
     u"cameo mikado tobacco fresco alto contralto falsetto"},
    {kCommonInNameSuffix,
     u"academician aesthetician agrarian alien amphibian antiquarian apian arcadian artesian authoritarian "
     u"avian barbarian bean beautician cean centenarian cetacean chean circadian civilian clean clinician "
     u"collegian comedian comprehensian contrarian crustacean custodian dean dietician dietitian diluvian "
     u"disciplinarian disciplinarian draconian egalitarian electrician equalitarian equestrian esthetician "
     u"fruitarian geriatrician glean grammarian guardian herculean historian humanitarian latitudinarian "
     u"lean lesbian librarian libertarian logician magician majoritarian mammalian marsupian mathematician "
     u"mean median meridian metaphysician midian millenarian musician nonagenarian obsidian obstetrician "
     u"ocean octogenarian optician ovarian parliamentarian patrician pean pedestrian pediatrician "
     u"phonetician physician plebeian pluvian politician proletarian protean quotidian radian reptilian "
     u"rhetorician riparian ruffian saurian sean sectarian seminarian septuagenarian simian stean "
     u"statistician subterranean tactician technician technicians theologian thespian totalitarian "
     u"tragedian trean trivian unclean utilitarian vaudevillian vegetarian veterinarian vulgarian zillion "
     u"antiutilitarian nonsectarian egalitarian demean bemean skean jean praetorian communitarian "
     u"equatorian cyclopean empyrean pean cheese these obese diocese geese legalese journalese reese "
     u"mayonnaise headachese archdiocese"},
    {kCommonInSurnameEnding,
     u"arson person reason season lesson prison poison comparison treason unison venison garrison crimson "
     u"parson liaison grandson stepson radius genius gingham iceberg vaudeville bikini martini houdini "
     u"panini zucchini husky risky frisky whisky salesperson spokesperson chairperson layperson mason "
     u"jettison unworth noteworth oxbow caisson alumni mini bison trustworth sartorius fettucini"},
    {kCommonPossessor,
     u"actor adult animal ant applicant architect artist author baby bachelor baker beast beginner bird "
     u"body boss boy bride brother business butcher buyer candidate cat century chef child children citizen "
     u"city clinician company computer consumer cook country creature critic crow customer daughter day "
     u"death devil doctor dog dragon earth editor emperor empire employee employer enemy engineer everyone "
     u"everybody eye family farmer father fool friend gardener gentleman gentlemen giant girl goddess "
     u"grandfather grandmother guide hacker hare heart heaven here hero hitchhiker home host house human "
     u"hunter husband individual infant insider it judge king kid kids lady lawyer leader learner let life "
     u"lion listener liver lover magician maker maiden maid man manager marketer master matter men "
     u"midsummer midwife mind mistress moment monkey month moon morning mother mouse musician nation nature "
     u"navigator neighbor neighbour night nobody novel novelist nurse observer ocean omnivore carnivore one "
     u"organization other outsider owner painter parent patient people person philosopher physician pilgrim "
     u"pilot player poet politician practitioner president prince prisoner professor programmer publisher "
     u"queen reader researcher sailor scholar school scientist season self seller serpent servant shepherd "
     u"ship sister slave society soldier somebody someone son speaker spirit spring stranger student summer "
     u"sun surgeon swan teacher that there therapist thief time today tomorrow tortoise town toddler "
     u"translator traveler traveller tree user victim viewer village visitor voter warrior watchman week "
     u"what who widow wife winter witch wolf woman women worker world writer year yesterday handmaid "
     u"handmaiden layman layperson investor educator conductor carpenter builder baker butler captain "
     u"chairman child collector connoisseur countryman craftsman creator dancer designer director dreamer "
     u"explorer faculty fisherman foreigner fox general golfer historian horseman ideal immigrant infantry "
     u"inventor journalist knight linguist mathematician merchant miller modeler naturalist newcomer novice "
     u"officer orphan peasant pirate planner plant practitioner priest prophet pupil sculptor seafarer "
     u"singer skeptic sorcerer squire state statistician storyteller survivor tailor tenant tiger trader "
     u"turtle vampire"},
    {kLoanWord,
     u"café cafés cliché clichés coöperation élite façade façades fiancé naïve naïvely naïveté protégé "
     u"régime résumé résumés rôle rôles soufflé"},

    // These are known as they are written.
    {kNameLead,
     u"Saint St Mount Mt Fort Ft Mr Mrs Ms Dr Sir Dame Herr Frau San Santa Los Las Ibn Madame"},
    {kTitleOfPerson,
     u"Captain Colonel Doctor Dona Duke Emperor Empress General Judge Justice Kaiser King Lady Lake Lord "
     u"Miss Pope Port President Prince Princess Professor Queen Senator Sultan Tsar Czar Uncle Aunt Don "
     u"Cape Camp Point"},
    {kNameTail,
     u"River Rivers Valley Mountain Mountains Island Islands Bay Sea Ocean Desert Peninsula Basin Delta "
     u"Canal Strait Coast Republic Federation Empire Kingdom Dynasty Revolution War Wars Conquest Pact "
     u"Cathedral Abbey Railroad Highlands Falls Gorge Glacier Plateau Archipelago Creek Isles Channel "
     u"County Prize Doctrine Accords Territory Hemisphere"},
    {kInstitutionTail,
     u"University College Institute Street Avenue Square Park Palace Castle Museum Harbor Harbour "
     u"Foundation Company Corporation Hall Medal Manifesto Constitution Observatory Bridge House"},
    {kOfLead,
     u"Battle Treaty Siege University Gulf Strait Straits Isle Cape Archbishop Bishop Duke Duchess Earl "
     u"Countess Republic Cathedral Archdiocese Province Peace Edict Council Commonwealth Bank"},
    {kDirection,
     u"North South East West Northeast Northwest Southeast Southwest Northern Southern Eastern Western "
     u"Central"},
    {kCompassPoint,
     u"North South East West"},
    {kOrganizationLead,
     u"American National International Royal European British Canadian World Australian U.S"},
    {kOrganizationTail,
     u"Association Society Institute Academy Council Agency Organization Federation Union League Commission "
     u"Bureau Congress"},
    // "the Clean Air Act", "the Wellcome Trust Case Control Consortium".
    {kTailBehindArticle,
     u"Act Collaboration Consortium Commission Committee Convention"},
    {kInstrumentTail,
     u"Inventory Scale Scales Questionnaire Checklist Battery Index Matrices Survey"},

    {kShipPrefix,
     u"U.S.S USS H.M.S HMS R.M.S RMS S.S"},
    {kAmbiguousMonth,
     u"May March"},

    // Language, in lower case again.
    {kEnglishWord,
     u"the of and in to for on with an from by at is as are how what why its his her their that this your "
     u"our you into or"},
    // French.
    {kForeignWord,
     u"les une dans sur pour avec aux chez être leur leurs ou sous cette"},
    // German.
    {kForeignWord,
     u"und ein eine einer über von zu für mit dem des im zur zum auf nach bei aus nicht durch"},
    // Spanish.
    {kForeignWord,
     u"los las del por con una para su sobre"},
    // Italian.
    {kForeignWord,
     u"il gli di della delle nel nella dei degli dello dal alla sul"},
    // Portuguese.
    {kForeignWord,
     u"os das uma em na pelo ao"},
    // Dutch.
    {kForeignWord,
     u"het een voor met op van uit naar"},
    // Latin.
    {kForeignWord,
     u"et ex cum sive ad contra adversus"},
    // Several of them.
    {kForeignWord,
     u"la le el de du da do dos der den das die et e y en se que lo"},
    {kLanguageParticle,
     u"de du di da del della la le el van von der den los las dos das do die e y en et ad ex lo contra des "
     u"se na op aux"},
    {kFirstArticle,
     u"la le les el los las il der das een het une"},
    {kAfterArticleInEnglish,
     u"angeles vegas niño nino niña jolla salvador paso mancha alamos guin carré corbusier"},
    {kOldWord,
     u"doe partes realmes whereunto worlde"},
};
// clang-format on

}  // namespace

std::span<const WordList> commonWords() {
    return kWords;
}

}  // namespace quorvel::titlewords

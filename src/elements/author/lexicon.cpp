#include "elements/author/lexicon.h"

#include <array>
#include <cstddef>

namespace quorvel::authorwords {

namespace {

// --- Last names -----------------------------------------------------------------------------------

// Dutch, German, French, Italian, Spanish, Portuguese, Scandinavian, Hebrew, Irish.
constexpr TextView kParticles[] = {
    u"van",   u"von",   u"vom",   u"vander", u"vanden", u"vande", u"der",   u"den",   u"de",  u"del",  u"della",
    u"dello", u"delle", u"degli", u"dei",    u"dell'",  u"dall'", u"dal",   u"dalla", u"di",  u"du",   u"des",
    u"dos",   u"da",    u"le",    u"la",     u"lo",     u"las",   u"los",   u"ter",   u"ten", u"te",   u"'t",
    u"'s",    u"het",   u"zu",    u"zum",    u"zur",    u"af",    u"av",    u"ben",   u"bin", u"bint", u"el",
    u"al",    u"de'",   u"d'",    u"st",     u"saint",  u"san",   u"santa", u"mac",   u"mc",  u"ó",    u"ní",
    u"nic",   u"ua",    u"uí",    u"o'",     u"vere",   u"ap",    u"ver",   u"zde",
};
constexpr TextView kLowerParticles[] = {
    u"do", u"das", u"in", u"op", u"am",  u"an",  u"auf", u"aus",  u"bei",
    u"im", u"d",   u"l",  u"m'", u"aan", u"tot", u"uit", u"thoe",
};
constexpr TextView kNameConjunctions[] = {u"y", u"e", u"i"};
// "Muhammad ibn Musa", "Ibn Khaldun".
constexpr TextView kArabicOpenings[] = {u"ibn", u"abd", u"abu", u"abou", u"umm"};

// A last name of two words: "Elias Chaibub Neto".
constexpr TextView kFamilySuffixes[] = {u"neto",   u"netto",    u"filho",    u"filha",  u"júnior",
                                        u"junior", u"sobrinho", u"sobrinha", u"segundo"};

// The first of two last names: "Ludwig Mies van der Rohe", "Pierre Teilhard de Chardin", "Laura Beane
// Freeman", "Gabriel García Márquez". No open rule on Spanish endings: it would be wrong for the many
// who use the first of two last names as a middle name.
constexpr TextView kPartialLastNames[] = {
    u"beane", u"mies", u"teilhard", u"sánchez", u"garcía", u"vargas", u"muñoz", u"ruiz", u"ortiz", u"díaz", u"núñez",
};

constexpr TextView kEastAsianLastNames[] = {u"chao", u"kurosawa", u"tsou", u"yoshida"};

constexpr TextView kPostfixes[] = {u"jr", u"sr", u"ii", u"iii", u"iv", u"2nd", u"3rd", u"4th"};
constexpr TextView kDegrees[] = {u"phd", u"ph.d", u"m.d", u"md", u"esq", u"dphil", u"d.phil", u"rn", u"mph", u"mba"};

// --- First names ----------------------------------------------------------------------------------

// Where the order of a name is in doubt these tell the first name; the usual ones of English,
// Spanish, Portuguese, French, German and Italian. None is a usual last name.
constexpr TextView kFirstNames[] = {
    u"anne",      u"darlene",   u"henry",      u"joan",      u"john",      u"ljiljana",    u"muhammed",   u"sheldon",
    u"aaron",     u"adam",      u"agnes",      u"alan",      u"albert",    u"alejandro",   u"alessandro", u"alexandra",
    u"alice",     u"amanda",    u"amy",        u"ana",       u"andrea",    u"andreas",     u"andrew",     u"andré",
    u"angela",    u"anna",      u"antonio",    u"barbara",   u"beatriz",   u"benjamin",    u"brian",      u"carl",
    u"carla",     u"carlo",     u"carlos",     u"carmen",    u"carol",     u"caroline",    u"catherine",  u"charles",
    u"charlotte", u"christian", u"christina",  u"christine", u"christoph", u"christopher", u"claire",     u"claudia",
    u"cristina",  u"daniel",    u"daniela",    u"david",     u"deborah",   u"diana",       u"diego",      u"donald",
    u"dorothy",   u"eduardo",   u"edward",     u"elena",     u"elizabeth", u"emily",       u"emma",       u"enrique",
    u"eric",      u"erik",      u"eva",        u"fabian",    u"federico",  u"felipe",      u"fernando",   u"frances",
    u"francesca", u"francesco", u"francisco",  u"françois",  u"françoise", u"friedrich",   u"gabriel",    u"gabriela",
    u"georg",     u"gerhard",   u"giovanni",   u"giulia",    u"giuseppe",  u"gregory",     u"guillermo",  u"hannah",
    u"hans",      u"harold",    u"heather",    u"heinrich",  u"helen",     u"hugo",        u"ignacio",    u"isabel",
    u"jack",      u"jacob",     u"jacqueline", u"jacques",   u"james",     u"jan",         u"jane",       u"janet",
    u"jason",     u"javier",    u"jean",       u"jennifer",  u"jeremy",    u"jessica",     u"joaquín",    u"johan",
    u"johannes",  u"jonathan",  u"jorge",      u"joseph",    u"joshua",    u"josé",        u"jose",       u"joão",
    u"joao",      u"juan",      u"julia",      u"julian",    u"julie",     u"julius",      u"karen",      u"karl",
    u"katherine", u"kathryn",   u"kenneth",    u"kevin",     u"klaus",     u"larry",       u"laura",      u"leonardo",
    u"linda",     u"lisa",      u"louise",     u"lucia",     u"luigi",     u"luis",        u"luiz",       u"luís",
    u"manuel",    u"marc",      u"marcelo",    u"marco",     u"marcos",    u"marcus",      u"margaret",   u"maria",
    u"marie",     u"mario",     u"mark",       u"martha",    u"mary",      u"maría",       u"mateo",      u"matthew",
    u"maurice",   u"melissa",   u"michael",    u"michel",    u"michelle",  u"miguel",      u"nancy",      u"nicholas",
    u"nicolas",   u"olivier",   u"pablo",      u"pamela",    u"paolo",     u"patricia",    u"patrick",    u"paul",
    u"paula",     u"paulo",     u"pedro",      u"peter",     u"philip",    u"philippe",    u"pierre",     u"pilar",
    u"rachel",    u"rafael",    u"raymond",    u"rebecca",   u"ricardo",   u"richard",     u"robert",     u"roberto",
    u"rodrigo",   u"rosa",      u"ruth",       u"samuel",    u"sandra",    u"sara",        u"sarah",      u"sebastian",
    u"sergio",    u"sharon",    u"silvia",     u"simone",    u"sofia",     u"sophie",      u"stefan",     u"stephanie",
    u"stephen",   u"steven",    u"susan",      u"sylvia",    u"teresa",    u"thomas",      u"timothy",    u"ursula",
    u"valentina", u"vanessa",   u"victoria",   u"vincent",   u"walter",    u"werner",      u"william",    u"wolfgang",
};

constexpr TextView kAbbreviations[] = {u"wm",  u"geo",  u"chas", u"jas", u"jos", u"thos", u"robt", u"benj", u"edw",
                                       u"chr", u"alex", u"fred", u"rev", u"mrs", u"prof", u"jun",  u"sen"};

// --- Institutions ---------------------------------------------------------------------------------

constexpr TextView kPrepositions[] = {u"of",  u"for", u"the",  u"on",      u"in",   u"at",
                                      u"to",  u"by",  u"with", u"against", u"from", u"pour",
                                      u"für", u"des", u"para", u"without", u"sans"};

constexpr TextView kInstitutionHeads[] = {
    u"academy",       u"agency",         u"agencies",      u"alliance",      u"assembly",      u"association",
    u"associations",  u"authority",      u"bank",          u"board",         u"brigade",       u"bureau",
    u"bundesamt",     u"cabinet",        u"center",        u"centers",       u"centre",        u"centres",
    u"church",        u"club",           u"coalition",     u"collaboration", u"collaborative", u"collaborators",
    u"collective",    u"college",        u"colleges",      u"comité",        u"comisión",      u"commission",
    u"commissioner",  u"committee",      u"committees",    u"community",     u"company",       u"conference",
    u"confederation", u"congress",       u"consortium",    u"convention",    u"cooperative",   u"corporation",
    u"council",       u"councils",       u"court",         u"department",    u"departments",   u"dept",
    u"directorate",   u"division",       u"embassy",       u"enterprise",    u"enterprises",   u"faculty",
    u"federation",    u"forum",          u"foundation",    u"foundations",   u"fund",          u"gallery",
    u"government",    u"group",          u"groups",        u"guild",         u"headquarters",  u"hospital",
    u"hospitals",     u"initiative",     u"inspectorate",  u"institut",      u"institute",     u"institutes",
    u"institution",   u"instituto",      u"investigators", u"laboratories",  u"laboratory",    u"labs",
    u"league",        u"library",        u"ministerio",    u"ministry",      u"mission",       u"movement",
    u"museum",        u"network",        u"networks",      u"observatory",   u"office",        u"organisation",
    u"organisations", u"organization",   u"organizations", u"panel",         u"parliament",    u"partnership",
    u"party",         u"police",         u"press",         u"program",       u"programme",     u"project",
    u"registry",      u"secretariat",    u"senate",        u"school",        u"schools",       u"seminar",
    u"service",       u"society",        u"societies",     u"statistics",    u"studio",        u"studios",
    u"subcommittee",  u"task",           u"team",          u"trial",         u"trialists",     u"tribunal",
    u"trust",         u"unit",           u"union",         u"universidad",   u"universidade",  u"universitas",
    u"universities",  u"university",     u"université",    u"universität",   u"workshop",      u"working",
    u"task-force",    u"taskforce",      u"publications",  u"publication",   u"publishers",    u"publishing",
    u"ministère",     u"administration",
};

constexpr TextView kInstitutionWords[] = {
    u"yorker",    u"education",  u"services",  u"study",        u"staff",           u"editors",
    u"force",     u"united",     u"nations",   u"news",         u"times",           u"post",
    u"herald",    u"tribune",    u"gazette",   u"guardian",     u"economist",       u"media",
    u"research",  u"systems",    u"software",  u"technologies", u"international",   u"global",
    u"online",    u"magazine",   u"journal",   u"states",       u"corps",           u"army",
    u"navy",      u"industries", u"partners",  u"associates",   u"productions",     u"pictures",
    u"records",   u"holdings",   u"solutions", u"airlines",     u"pharmaceuticals", u"motors",
    u"insurance", u"electric",   u"telecom",   u"broadcasting", u"television",      u"radio",
    u"films",     u"website",    u"wikipedia", u"contributors", u"county",          u"national",
    u"archives",  u"affairs",    u"sciences",  u"analytics",    u"consulting",      u"editorial",
    u"crew",      u"survey",     u"campaign",  u"developers",   u"reporters",       u"correspondents",
    u"members",   u"students",   u"workers",   u"teachers",     u"rights",          u"watch",
    u"canada",    u"australia",  u"zealand",   u"britain",
};

// Words of institutions that are surnames as well: "Emma Church", "William Press".
constexpr TextView kSurnamesToo[] = {u"press",  u"bank",   u"church", u"court", u"trust",   u"post",    u"study",
                                     u"herald", u"states", u"times",  u"party", u"records", u"college", u"school",
                                     u"forum",  u"united", u"fund",   u"club",  u"unit",    u"guardian"};

constexpr TextView kTopics[] = {
    u"affairs",     u"agriculture",    u"aging",          u"allied",        u"analysis",   u"arts",
    u"assessment",  u"assistance",     u"atmospheric",    u"care",          u"clinics",    u"colleges",
    u"commerce",    u"communication",  u"communications", u"conservation",  u"consumer",   u"control",
    u"culture",     u"curriculum",     u"defence",        u"defense",       u"design",     u"development",
    u"diseases",    u"drugs",          u"economics",      u"economy",       u"education",  u"employment",
    u"energy",      u"engineering",    u"environment",    u"environmental", u"ethics",     u"evaluation",
    u"excellence",  u"explosives",     u"family",         u"finance",       u"fisheries",  u"food",
    u"forestry",    u"government",     u"health",         u"history",       u"housing",    u"humanities",
    u"immigration", u"industry",       u"information",    u"innovation",    u"justice",    u"kidney",
    u"labor",       u"labour",         u"language",       u"law",           u"letters",    u"management",
    u"mathematics", u"medicine",       u"natural",        u"nutrition",     u"oceanic",    u"planning",
    u"policy",      u"politics",       u"prevention",     u"protection",    u"psychology", u"quality",
    u"reform",      u"regulation",     u"relations",      u"research",      u"resources",  u"rights",
    u"safety",      u"science",        u"sciences",       u"security",      u"services",   u"skills",
    u"social",      u"software",       u"standards",      u"statistics",    u"studies",    u"supervision",
    u"support",     u"surgeons",       u"technology",     u"tourism",       u"trade",      u"training",
    u"transport",   u"transportation", u"treatment",      u"universities",  u"urban",      u"veterans",
    u"water",       u"welfare",        u"wildlife",       u"women",         u"youth",
};

constexpr TextView kInstitutionOpenings[] = {
    u"national", u"international", u"american", u"european", u"royal",       u"federal",    u"world",    u"u.s",
    u"us",       u"u.k",           u"uk",       u"british",  u"canadian",    u"australian", u"african",  u"asian",
    u"united",   u"joint",         u"german",   u"french",   u"indian",      u"chinese",    u"japanese", u"advisory",
    u"central",  u"state",         u"the",      u"global",   u"interagency", u"select",     u"standing", u"public",
};

constexpr TextView kCompanyEndings[] = {u"inc", u"ltd", u"llc",     u"corp",         u"co",  u"gmbh",
                                        u"plc", u"llp", u"limited", u"incorporated", u"s.a", u"ag",
                                        u"b.v", u"l.p", u"pty",     u"company"};

// "U.S. Department of Commerce, Bureau of the Census".
constexpr TextView kSubdivisions[] = {u"bureau",       u"dept",   u"department", u"division", u"office",
                                      u"subcommittee", u"cong",   u"congress",   u"house",    u"senate",
                                      u"committee",    u"branch", u"section"};

// --- The list's own words -------------------------------------------------------------------------

constexpr TextView kAndWords[] = {u"and", u"&", u"und", u"et"};
constexpr TextView kEditorTags[] = {u"ed", u"eds", u"editor", u"editors", u"hrsg"};
constexpr TextView kCompilerTags[] = {u"comp", u"comps", u"compiler", u"compilers"};
constexpr TextView kTranslatorTags[] = {u"trans", u"translator", u"translators"};
constexpr TextView kTagOrnaments[] = {u"guest", u"anthology", u"general", u"gen", u"series", u"vol"};
constexpr TextView kResidueWords[] = {u"trans",  u"afterword", u"foreword", u"introduction", u"preface", u"vol",
                                      u"edited", u"in",        u"press",    u"n.d",          u"(n.d"};
constexpr TextView kEditionWords[] = {u"new", u"rev",      u"revised", u"enl", u"enlarged", u"updated",
                                      u"exp", u"expanded", u"1st",     u"2nd", u"3rd",      u"4th",
                                      u"5th", u"6th",      u"7th",     u"8th", u"9th",      u"10th"};

struct WordTable {
    const TextView* words;
    std::size_t count;
    std::uint32_t wordClass;
};

template <std::size_t N>
constexpr WordTable table(const TextView (&words)[N], std::uint32_t wordClass) {
    return {words, N, wordClass};
}

constexpr TextView kEtWords[] = {u"et"};
constexpr TextView kAlWords[] = {u"al", u"alii", u"alia"};
constexpr TextView kDiscussionWords[] = {u"discussion"};

constexpr WordTable kTables[] = {
    table(kParticles, kParticle),
    table(kLowerParticles, kLowerParticle),
    table(kNameConjunctions, kNameConjunction),
    table(kArabicOpenings, kArabicOpening | kParticle),
    table(kFamilySuffixes, kFamilySuffix),
    table(kPartialLastNames, kPartialLastName),
    table(kEastAsianLastNames, kEastAsianLastName),
    table(kPostfixes, kPostfix),
    table(kDegrees, kDegree),
    table(kFirstNames, kFirstName),
    table(kAbbreviations, kAbbreviation),
    table(kPrepositions, kPreposition),
    table(kInstitutionHeads, kInstitutionHead),
    table(kInstitutionWords, kInstitutionWord),
    table(kSurnamesToo, kAlsoSurname),
    table(kTopics, kTopic),
    table(kInstitutionOpenings, kInstitutionOpening),
    table(kCompanyEndings, kCompanyEnding),
    table(kSubdivisions, kSubdivision),
    table(kAndWords, kAnd),
    table(kEditorTags, kEditorTag),
    table(kCompilerTags, kCompilerTag),
    table(kTranslatorTags, kTranslatorTag),
    table(kTagOrnaments, kTagOrnament),
    table(kEtWords, kEt),
    table(kAlWords, kAl),
    table(kResidueWords, kResidueWord),
    table(kEditionWords, kEditionWord),
    table(kDiscussionWords, kDiscussion),
};

// One hash table made of all of them by the compiler.
struct Entry {
    TextView word;
    std::uint32_t classes = kNoClass;
};

constexpr std::size_t kSlots = 4096;

constexpr std::size_t slotOf(TextView word) {
    std::uint32_t hash = 2166136261U;
    for (const char16_t unit : word) {
        hash = (hash ^ unit) * 16777619U;
    }
    return (hash ^ (hash >> 15U)) % kSlots;
}

constexpr std::array<Entry, kSlots> lexicon() {
    std::array<Entry, kSlots> entries{};
    for (const WordTable& words : kTables) {
        for (std::size_t i = 0; i < words.count; ++i) {
            std::size_t slot = slotOf(words.words[i]);
            while (!entries[slot].word.empty() && entries[slot].word != words.words[i]) {
                slot = (slot + 1) % kSlots;
            }
            entries[slot].word = words.words[i];
            entries[slot].classes |= words.wordClass;
        }
    }
    return entries;
}

constexpr std::array<Entry, kSlots> kLexicon = lexicon();

// Which slots hold a word: most words that are looked up are names and end at this small table.
constexpr std::size_t kBits = 64;

constexpr std::array<std::uint64_t, kSlots / kBits> occupancy() {
    std::array<std::uint64_t, kSlots / kBits> bits{};
    for (std::size_t slot = 0; slot < kSlots; ++slot) {
        if (!kLexicon[slot].word.empty()) {
            bits[slot / kBits] |= std::uint64_t{1} << (slot % kBits);
        }
    }
    return bits;
}

constexpr std::array<std::uint64_t, kSlots / kBits> kOccupancy = occupancy();

bool isOccupied(std::size_t slot) {
    return ((kOccupancy[slot / kBits] >> (slot % kBits)) & 1U) != 0;
}

}  // namespace

std::uint32_t classesOf(TextView lowerCaseWord) {
    std::size_t slot = slotOf(lowerCaseWord);
    while (isOccupied(slot)) {
        if (kLexicon[slot].word == lowerCaseWord) {
            return kLexicon[slot].classes;
        }
        slot = (slot + 1) % kSlots;
    }
    return kNoClass;
}

}  // namespace quorvel::authorwords

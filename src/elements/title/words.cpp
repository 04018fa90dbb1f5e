// The lists of words that are no names. A word may stand in several of them.

#include "elements/title/words.h"

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
     u"la las los del della degli dello des den dem das do da dos y e al el ibn bin al- ten ter"},
    {kStaysInHeading,
     u"vs v n et ca"},
    {kSpeciesEpithet,
     u"acidophilus aegypti aeruginosa aestivum agalactiae albicans albopictus americanus annuum anthracis "
     u"aureus avium baumannii benthamiana botulinum bovis brucei burgdorferi caballus californica "
     u"carolinensis carpio castaneum catus cerevisiae cholerae cinerea coli communis crassa cruzi davidiana "
     u"difficile domestica domesticus donovani duodenale economicus edulis elegans enterocolitica "
     u"epidermidis erectus faber faecalis faecium falciparum familiaris fascicularis flavus frugiperda "
     u"fumigatus gambiae gigas gondii graminearum granulosus habilis haematobium haemolyticus hepatica "
     u"infantum infestans influenzae japonica japonicum jejuni laevis leprae leucas ludens lupus "
     u"lycopersicum malayi maltophilia mansoni melanogaster meliloti mellifera mirabilis monocytogenes "
     u"morhua mulatta multilocularis musculus mutans mykiss napus neanderthalensis nidulans nigra "
     u"norvegicus novaeangliae officinalis oleracea oryzae oxysporum pallidum pallipes paniscus pendula "
     u"perfringens pestis petraea phocoena pipiens plantarum pneumoniae pombe purpuratus pylori pyogenes "
     u"quinquefasciatus rerio rex rhamnosus robur salar sapiens sativa sativum sativus scrofa simulans "
     u"sinensis smegmatis solani solium spiralis stephensi stercoralis stipitis subtilis sylvatica "
     u"sylvestris tabacum taurus terrestris thaliana thermophilus trachomatis trichiura trichocarpa "
     u"troglodytes tropicalis truncatula truncatus trutta tuberculosis tuberosum tumefaciens typhimurium "
     u"vinifera virginica vivax volvulus vulgare vulgaris"},
    {kAbbreviation,
     u"vs v mr mrs ms dr st jr sr prof rev gen col capt lt sgt mt ft no nos vol vols pt ch fig ed eds al cf "
     u"ca approx dept u.s.s u.s u.k h.m.s e.g i.e"},
    {kLetterTaker,
     u"vitamin hepatitis influenza type group class plan part appendix level grade series category factor "
     u"protein schedule section vitamins cyclosporin haemophilia hemophilia immunoglobulin"},
    {kCommonInVowel,
     u"abaci acanthi achoo adagio adieu aero aficionado ago aikido akimbo albedo albino alfresco alibi "
     u"alkali allegro also altho alto alumni alveoli amigo amino ammo anti antihero antineutrino antipasti "
     u"antipasto archipelago armadillo arpeggio arroyo audio auto avocado bacilli ballyhoo bamboo banditti "
     u"bani banjo barrio bassi basso bayou beau belli beriberi bhakti bi bikini bimbo bingo biopsychosocio "
     u"bistro blammo bolero bolo bongo bonito bonobo bonsai bordello bozo bracero braggadocio bravado bravo "
     u"broccoli bronchi broncho bronco brontosauri buffalo bugaboo bureau burrito burro bushido buteo "
     u"caballero cacao cacti caducei calamari calculi calico calypso cameo campanili campesino campo "
     u"canaliculi cannelloni canto capo cappuccino cardio cargo caribou carpi casino cassino castrato "
     u"caudillo celli cello centimo cerebro certiorari chapati chemo chiaroscuro chichi chico chili chilli "
     u"chino chorizo cigarillo cilantro cinquecento cirri coati cocci cockatoo coco cogito cognoscenti "
     u"colossi combo commando compo concerti concertino concerto condo confetti contango contralto corgi "
     u"cortico coypu cranio credo crescendi crescendo criollo croci crypto cuckoo cumuli curio cyclo cyto "
     u"dado daiquiri dashiki decrescendi decrescendo deli delicti demo dento desperado dextro dhoti diazo "
     u"didgeridoo digerati dildo dilettanti diminuendo dingo disco ditto djinni do dodo domino dorso "
     u"drachmai drongo dunno duo dynamo echo ecru ecu effendi ego electro embargo emboli embryo emoji emu "
     u"ennui envoi ergo escudo esophagi esperanto espresso eucalypti euro expo fabliau facto falsetto "
     u"fandango fellatio fiasco fibro flamenco flamingo flu fluoro foci folio fondu forego forgo fortiori "
     u"fortissimo frangipani fresco fungi gabbro garbanzo gastro gaucho gazebo gazpacho gecko generalissimo "
     u"genii gesso ghetto gigolo gingko ginkgo giro gismo gizmo gladioli glissandi glissando glitterati "
     u"glomeruli gluco glutei gnocchi go gonzo graffiti graffito gringo grotto guano gumbo guru gusto gyri "
     u"gyro hadji haiku hairdo haji halo hausfrau helio hello hemato hepato hereto hero hetero hi hibachi "
     u"hidalgo hippo hippocampi hippopotami histo hitherto hobo homo honcho hoodoo hullabaloo humeri hydro "
     u"hypo hypothalami igloo illuminati imago imbroglio immuno impasto impetigo impi impresario impromptu "
     u"incognito incommunicado incubi indigo inferno infero info initio innuendo intagli intaglio "
     u"intermezzi intermezzo into intro issei isthmi jacuzzi jello jinni jiujitsu judo jujitsu jujutsu "
     u"jumbo junco kabuki kangaroo kanzu kauri kazoo kepi keto khaki kiddo kilo kimchi kimono kinkajou kiwi "
     u"kohlrabi kudu kudzu lactobacilli largo lasso legato libero libido libretti libretto lido lieu limbo "
     u"limo lingo lino litchi literati litho llano loci loco logo logratio lotto luau lulu lumbago lympho "
     u"macaco macaroni machismo macho macro maestri maestro mafiosi mafioso magi magneto maharani maharishi "
     u"majordomo mako mambo mango manicotti manifesto manitou marabou mariachi martini matzo maxi medico "
     u"medio memento memo menisci menu merino mestizo metacarpi metatarsi metro mezzo micro midi mikado "
     u"milieu mini misdo miso moderato modi moduli modulo mojo mono monsignori morpho mosquito motto muesli "
     u"mufti mulatto multi mundi muumuu nacho naevi nano narcissi naso nautili necro neo nephro neuro "
     u"neutrino nevi nilgai nimbi nisei nitro nitroso no nonzero novo nuclei nucleoli nulli nuncio "
     u"obbligato occipito octavo octopi octroi oculi oculo okapi oleo oligo onco onto operandi oratorio "
     u"oregano origami ormolu ortho orzo osteo outdo outgo overdo ovolo pachisi paisano palaeo palazzi "
     u"palazzo paleo palmetto palomino panto paparazzi paparazzo papyri paramo parvenu pastrami patchouli "
     u"patho patio peccadillo peekaboo pepperoni peso pesto phalli pharmaco phono photo physico physio "
     u"pianissimi pianissimo piano piccalilli piccolo pilau pimento pimiento pinko pinto pistachio "
     u"pizzicati pizzicato placebo plateau platypi pneumo pneumococci pogo polio politico pomo poncho porno "
     u"portfolio portico portmanteau posteriori potato potpourri potto presidio presto priori pro promo "
     u"pronto proprio prosciutto proto proviso prurigo pseudo psycho pueblo putto pylori pyro quai quango "
     u"quarto quasi quattrocento rabbi radii radio rancho rani ratio ravioli rebozo recitativo recto redo "
     u"rehi renvoi repo repro retablo retro rhino rhinoceri rhombi risotto rococo rodeo rondo rubato sacro "
     u"sadhu safari sago saguaro saki salami salvo samadhi samurai sandhi sansei sarcophagi sari sati "
     u"satori scampi scenario scherzi scherzo schizo seicento semi seppuku seraglio serai servo sexto "
     u"sfumato shampoo shiatsu shoo silico silo simpatico sirocco situ ski snafu so socio solfeggio soli "
     u"solidi solo sombrero soprano sori spaghetti spatio spumoni staccati staccato staphylococci stdio "
     u"stereo stiletto stimuli strati streptococci stretto stucco studio styli subzero sukiyaki sulci sulfo "
     u"sumo superego superhero supremo sushi swami syllabi synchro tableau taboo tabu taco tahini tallyho "
     u"tandoori tangelo tango taro tarsi tatami tattoo taxi techno telephoto tempi tempo teriyaki termini "
     u"terrazzo testudo thalami thereto thermo thesauri thou thrombi thru thymi tiki timpani tipi tiramisu "
     u"tiro to tobacco tofu tomato too topoi torero tori torii tornado torpedo torsi torso toxico trecento "
     u"tremolo tri trio triumviri trousseau tsunami tumuli tupelo turbo tutu tuxedo two typo tyro ultimo "
     u"umami umbilici undergo undo unto uredo uteri utero vagi vaporetto vaquero veno ventro verismo "
     u"vermicelli verso vertigo veto vibrato video villi vino violoncello virago vireo virtu virtuosi "
     u"virtuoso vitiligo vitro vivendi vivo volcano volvo voodoo wacko wadi wahoo waldo wapiti wasabi "
     u"weirdo who whoso wiki wino xeno yeti yo-yo yogi yoni you zaibatsu zebu zero zombi zucchini"},
    {kCommonInNameSuffix,
     u"academician aesthetician agrarian alien amoebaean amphibian antediluvian antinomian antiquarian "
     u"antiutilitarian apian arcadian archdiocese artesian ascidian authoritarian avian bacchanalian banian "
     u"barbarian batrachian bean beautician bemean caesarean carnelian cean centenarian cerulean cesarean "
     u"cetacean chean cheese chelonian circadian civilian clean clinician collegian comedian communitarian "
     u"comprehensian computerese contrarian cornucopian creese crocodilian crustacean custodian cyclopean "
     u"cyprian dean demean dietician dietitian diluvian dinosaurian diocese disciplinarian draconian durian "
     u"dystopian egalitarian electrician empyrean epicurean equalitarian equatorian equestrian esthetician "
     u"eutherian ferromanganese fruitarian fustian geese gentian geriatrician gigantean glean grammarian "
     u"guardian headachese headcheese herculean historian holothurian houseclean humanitarian hyperborean "
     u"infusorian isthmian jean jellybean journalese labyrinthian latitudinarian lean legalese lesbian "
     u"libertarian librarian logician madrigalian magician majoritarian mammalian manganese marsupian "
     u"mathematician mayonnaise mean median meridian metaphysician metatherian midian millenarian misdemean "
     u"musician nemertean nonagenarian nonhistorian nonlibrarian nonmammalian nonsectarian obese obsidian "
     u"obstetrician ocean octogenarian officialese ophidian optician ornithischian ovarian parliamentarian "
     u"patrician pean pedestrian pediatrician philologian phonetician physician plebeian pluvian politician "
     u"postdiluvian praetorian preclean prehistorian proboscidean proletarian prosimian protean "
     u"prototherian quean quotidian radian reese reptilian rhetorician riparian ruffian salutatorian "
     u"saurian saurischian sean sectarian selachian seminarian septuagenarian simian skean soybean "
     u"statistician stean stentorian steradian subclavian subdean subterranean superclean tactician "
     u"technician technicians telegraphese tellurian tertian theologian these thespian totalitarian "
     u"tragedian trean trivian unchristian unclean utilitarian utopian valedictorian vaudevillian "
     u"vegetarian veterinarian viridian vulgarian zillion"},
    {kCommonInSurnameEnding,
     u"alumni arson benison berg bikini bison brougham burg caisson caparison capstan chairperson chanson "
     u"comparison counterpoison crimson damson dashiki denarius diapason dirham disimprison dupondius "
     u"empoison encrimson fettuccini fettucini foison frisky garrison gastrocnemius genius gingham gladius "
     u"godson grandson halfpennyworth homburg houdini houseperson husky iceberg imprison jettison jobsworth "
     u"keelson kolinsky layperson lesson liaison linguini malison martini mason medius mini modius nauplius "
     u"nonperson noteworth offseason orison outreason oxbow panini parson pennyworth person petersham "
     u"poison postseason preseason prison radius reason rebury retiarius risky sacristan salesperson "
     u"sardius sartorius season splenius spokesperson sponson stepson stonemason subclavius telson "
     u"trapezius treason trustworth unison unreason unworth vaudeville venison warison whisky whoreson "
     u"zucchini"},
    {kCommonPossessor,
     u"academy actor administration adult adviser advisor advocate agency agent alchemist amateur "
     u"ambassador animal ant anthropologist anybody anyone applicant architect army artisan artist "
     u"astronaut astronomer athlete attorney auditor aunt author baby bachelor baker bank banker bat bear "
     u"beast bee beginner beholder believer biologist bird bishop blacksmith board body bookseller boss boy "
     u"brain bride broker brother buddha builder bull business butcher butler butterfly buyer candidate "
     u"capital capitalism captain caregiver caretaker carnivore carpenter cat cell censor century chairman "
     u"champion chaplain charity chef chemist child children church citizen city civilization class client "
     u"clinician clown coach collector college colonel colony columnist committee community company "
     u"composer computer conductor congress congressman connoisseur constable consultant consumer "
     u"contractor cook coroner corporation country countryman couple court courtier cow coward cowboy "
     u"craftsman creation creator creature crew criminal critic crow crowd culture curator customer cyclist "
     u"dad dancer daughter day dealer death debtor decade deer defendant democracy department designer "
     u"developer devil diplomat director district diver doctor dog donor dragon dreamer driver drummer "
     u"duchess duke dwarf eagle earth economist economy editor educator elder elephant embryo emperor "
     u"empire employee employer enemy engineer enterprise evening everybody everyday everyman everyone "
     u"executive expert explorer eye faculty fairy falcon family farmer fashion father federation fellow "
     u"firm fisherman flower fly follower fool force foreigner forest fox freshman friend frog future game "
     u"gardener general generation genius gentleman gentlemen ghost giant girl goat goddess golfer "
     u"government governor graduate grandfather grandma grandmother grandpa grower guardian guest guide "
     u"guitarist gunner gypsy hacker handmaid handmaiden hangman hare hawk healer heart heaven hedgehog "
     u"helper hen herald herd here heretic hermit hero historian hitchhiker home horse horseman host "
     u"hostess hound hour house householder human humanist humanity hunter husband ideal idiot imam "
     u"immigrant individual industry infant infantry inheritor inmate inquisitor insider inspector "
     u"institution insurgent interpreter invader inventor investigator investor it jeweler journal "
     u"journalist judge juror jury justice keeper kid kids killer king knave knight laborer labourer lady "
     u"landlord language lark law lawmaker lawyer layman layperson leader league learner lecturer "
     u"legislator leopard let liar librarian life linguist lion listener literature liver lizard locksmith "
     u"locust lodger logician lord lover lynx machine maestro magician magistrate magpie magus maid maiden "
     u"maker mammal man manager mankind mapmaker mariner market marketer mason master mathematician matter "
     u"maverick mayor medicine member men mentor merchant messenger metropolis midsummer midwife miller "
     u"mind miner minister ministry minority missionary mistress mob modeler mole mom moment monarch monk "
     u"monkey monster month moon morning mosque moth mother motorist mountain mouse movement mule mum muse "
     u"museum musician musicologist mystic narcissist narrator nation naturalist nature navigator navy "
     u"neighbor neighbour neuron newcomer newspaper night ninja noble nobleman nobody none novel novelist "
     u"novice nun nurse nymph observer ocean octopus officer ogre omnivore one onlooker opera operator "
     u"opponent oracle orator orchestra order organ organism organization orphan other outsider owl owner "
     u"painter pair panther paramedic parent parliament parrot partner party passenger pastor patient "
     u"patriarch patron peacock peasant peddler peer penguin people performer period person pharaoh "
     u"pharmacist philanthropist philosopher phoenix photographer physician pianist pig pigeon pilgrim "
     u"pilot piper pirate place plaintiff planet planner plant player playwright plumber poacher poet "
     u"police policeman politician pony pope population porter possum potter practitioner preacher predator "
     u"president prey priest priestess primate prime prince principal printer prisoner profession professor "
     u"programmer prophet prosecutor prospector province psychiatrist psychologist public publisher pupil "
     u"puppet quaker queen rabbi rabbit race ranger rat raven reader rebel recipient rector referee "
     u"reformer regime region regulator reporter republic research researcher reviewer rhetorician rival "
     u"river robin robot rogue rooster ruler sailor saint salamander salesman salmon satirist savant "
     u"scapegoat scholar school scientist scorpion scribe sculptor sea seafarer seal seamstress season "
     u"secretary seeker self seller senator sender sentinel sergeant serpent servant session settler shaman "
     u"shark sheep shepherd shepherdess sheriff ship shopkeeper silence singer siren sister skeleton "
     u"skeptic slave sleeper smuggler snail snake socialist society sociologist soldier somebody someone "
     u"son sorcerer sorceress soul sovereign sparrow speaker specialist species spectator speculator sphinx "
     u"spider spinster spirit sponsor spouse spring spy squire squirrel stag star state statesman "
     u"statistician stepmother steward store stork storyteller stranger strategist student subject "
     u"successor summer sun supervisor surgeon surveyor survivor suspect swallow swan swimmer system tailor "
     u"teacher tenant testator that therapist there thief thing tiger time tinker toad today toddler tomb "
     u"tomorrow tortoise town trader trainer traitor translator trapper traveler traveller tree tribe "
     u"trickster troubadour truth turkey turtle tutor twin tyrant uncle unicorn universe university "
     u"urologist user usurper utopia vagabond valley vampire vegetarian vendor veteran vicar viceroy victim "
     u"viewer village villain viper virgin virus visitor volcano volunteer voter voyager vulture walrus "
     u"wanderer warden warlock warlord warrior washerwoman wasp watchdog watchmaker watchman water weasel "
     u"weaver week whale what whistleblower who widow wife winter wise witch witness wizard wolf woman "
     u"women woodcutter worker working world worm wren writer year yeoman yesterday youth zebra zoologist"},
    {kCommonPlural,
     u"amiss ashes barres bellows bens boas bridges brooks bunches burkes burns cantons canyons capstans "
     u"challengers chambers chevrons coburgs colas congresses crusades dames dickeys dockers dollies druids "
     u"fezzes fields firths fishers gates genets gods grahams hamlets hectors herders hicks homers homos "
     u"hoppers hurds ingress jacks jerseys johns joules lakes landaus lens lenses levants lucernes "
     u"mandarins mantels marcels marches masons medusas mills moguls montes muss nelsons newtons ohms "
     u"parsons pentagons poppers pythons rainbows ravels rivers romeos senates sextons shakers sheilas "
     u"skinners somersets stasis stetsons stokers superheroes suss swifts tangs tellers teslas titans "
     u"towers treks triers turkeys turners valerians voyagers wards warrens waters webers whistlers "
     u"whiteheads whittles wieners"},
    {kPrefix,
     u"non semi anti pre post quasi pseudo neo sub inter trans multi un over self all cross intra extra "
     u"ultra super co counter micro macro meta mid bi tri re de ex pro proto pan poly hyper hypo infra "
     u"under out near far high low half full hidden"},
    {kCompoundTail,
     u"mass size sized scale rate type types like style styles free based driven wide era born made time form model models "
     u"method methods test tests theory effect effects law laws value space flow field net nets process "
     u"chain chains filter filters equation equations function functions speak bound rich poor day land "
     u"area level line man men woman women child city state states system systems first second only school "
     u"group class backed led ready century studies study rule game games war peace world problem problems "
     u"disease syndrome positive negative proof"},
    {kAmbiguousGivenName,
     u"Mark Bill Jack Max Harry Grace Hope Faith Joy Rose Will Art Drew Pat Rob Gene Dale Glen Chuck Dick "
     u"Ray Guy Norm Dawn Ivy Lily Daisy Iris Violet Ruby Pearl Amber Olive Ginger Sandy Chase Hunter Grant "
     u"Miles Penny Robin Jay Lance Pierce Wade Clay Victor Charity Patience Prudence Basil Sue Don Dean "
     u"Duke Earl Rich Ward Reed Heath Cliff Buck Angel Rosemary Summer Autumn Rod Rusty Sunny Melody "
     u"Harmony Trinity Star Forest Sage Crystal Stella Gay Hazel Heather Holly Fern Linden Rowan Candy "
     u"Cherry Myrtle Dolly"},
    {kAcronymTail,
     u"Inventory Scale Scales Survey Questionnaire Checklist Schedule Battery Project Initiative Consortium "
     u"Database Archive Repository Registry"},
    {kTailAtEnd, u"Project Declaration Agreement Protocol Accord Initiative Compromise Concordat School Process"},
    {kOfLeadBehindArticle, u"Journal Ministry Department"},
    {kPartner, u"Company Son Sons Brothers"},
    {kAmbiguousName,
     u"Freeman Davenport Hedges Student Good Box Black Brown Green Young Stone Wood Savage Small Long Rich Price Field Strong Wise "
     u"Short Sharp Swift Wick Bright Graves Stern Hand Horn Hunter Fuller Baker Cook Lock Bell Hill Wells "
     u"Church King Bishop Rice Fields Moon Park Parks Wall Walls Ward West Winter Frost Snow Stock Hull "
     u"Ball Bond Power Powers Head Marsh Bird Fox Wolf Lamb Moody Gross Case Cash Chase Child Close Day "
     u"Dean Early Ford Gold Golden Grant Gray Grey Hart Hood Hook House Kitchen Knight Lane Law Little Love "
     u"Low Major Marks May Miles Mills Moss Nash Noble Page Palm Pike Poole Porter Pound Press Read "
     u"Ring Rivers Rose Ross Rush Sage Salmon Seal Silver Singer Skinner Spring Steel Street Summers Temple "
     u"Thorn Tucker Tyre Walker Waters Webber Weeks White Wilder Winters Witt Words Worth Wren Weaver "
     u"Taylor Fisher Crafts Carter Cooper Mason Potter Shepherd Gardener Barber Cole Glass Gross Kaiser "
     u"Koch Lange Stark Winkler Wagner Zimmer Hunt Doll Down Wing Flood Holland Booth"},
    {kLoanWord,
     u"abbé abbés adiós appliqué appliquéd appliquéing appliqués attaché attachés blasé boutonnière "
     u"boutonnières café cafés canapé canapés château châteaux châtelaine châtelaines cliché clichéd "
     u"clichés clientèle clientèles cloisonné communiqué communiqués confrère confrères consommé cortège "
     u"cortèges coöperation coöperative coördination croûton croûtons crudités crèche crèches derrière "
     u"derrières divorcée divorcées doppelgänger débridement débutant débutante débutantes déclassé "
     u"décolleté déjà dénouement dérailleur dérailleurs détente encyclopædia entrepôt entrée entrées façade "
     u"façades fiancé fiancée fiancées fiancés flambé flambéed frappé fête fêtes föhn habitué habitués "
     u"ingénue ingénues jalapeño jalapeños jardinière jardinières kindergärtner kindergärtners króna krónur "
     u"macramé manqué manège matinée matinées matériel mañana mélange mésalliance métier métiers mêlée "
     u"mêlées naiveté naïf naïfs naïve naïvely naïveté niño née outré papier-mâché passé piñata preëminent "
     u"protégé protégés précis précised précising prêt-à-porter purée pâté pâtés raison-d'être recherché "
     u"reëlection risqué roué roués régime résumé résumés rôle rôles sauté sautéed sautéing sautés señor "
     u"señora señorita smörgåsbord smörgåsbords smørrebrød soirée soirées soufflé soufflés soupçon soupçons "
     u"séance séances touché tête-à-tête vicuña vicuñas vis-à-vis voilà zoölogy à-la æsthetic æsthetics "
     u"éclair éclairs éclat élan élite élites élitism élitist émigré émigrés épée épées étude études über"},

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
     u"County Prize Doctrine Accords Territory Hemisphere Gulf Reef Himalaya Supercluster"},
    {kInstitutionTail,
     u"University College Institute Street Avenue Square Park Palace Castle Museum Harbor Harbour "
     u"Foundation Company Corporation Hall Medal Manifesto Constitution Observatory Bridge House Press Chapel Airport"},
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
     u"Inventory Scale Scales Questionnaire Checklist Battery"},

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

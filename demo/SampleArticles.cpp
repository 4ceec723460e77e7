// SPDX-License-Identifier: MIT
#include "demo/SampleArticles.h"

#include <array>
#include <string_view>

namespace vell::demo {

namespace {

// None of these newspapers exists, and nothing that they report happened.
struct Paper {
    const char* Code;
    const char* Name;
    bool IsGreek;
};
enum PaperNumber { Anem, Diav, Glar, Kyma, Lant, Thym };
constexpr std::array<Paper, 6> papers{{{"ANEM", "Ο Ανεμοδείκτης", true},
                                       {"DIAV", "Οικονομικός Διαβήτης", true},
                                       {"GLAR", "Πρωινός Γλάρος", true},
                                       {"KYMA", "Εσπερινό Κύμα", true},
                                       {"LANT", "The Harbour Lantern", false},
                                       {"THYM", "Thyme Hill Gazette", false}}};

constexpr std::size_t sentencesOfATheme = 7;
using Sentences = std::array<const char*, sentencesOfATheme>;

enum Theme { Economy, Politics, Culture, Sport, Nature, Science, General, ThemeCount };

constexpr std::array<Sentences, ThemeCount> greekSentences{{
    {"Οι εξαγωγές ελαιολάδου αυξήθηκαν κατά 8% το πρώτο τρίμηνο, σύμφωνα με τα στοιχεία των παραγωγών.",
     "Οι μικρές επιχειρήσεις ζητούν ταχύτερες διαδικασίες και σταθερούς φορολογικούς κανόνες για την επόμενη "
     "πενταετία.",
     "Το νέο πρόγραμμα δανείων αφορά κυρίως οικογενειακές μονάδες με λιγότερους από δέκα εργαζομένους.",
     "Στην αγορά εργασίας η ζήτηση για τεχνίτες ξεπερνά πλέον κατά πολύ την προσφορά.",
     "Τα λιμάνια της περιοχής εξυπηρέτησαν φέτος περισσότερα πλοία από κάθε άλλη χρονιά.",
     "Οι τιμές των καυσίμων έμειναν αμετάβλητες, ενώ το κόστος μεταφοράς υποχώρησε ελαφρά.",
     "Οι οικονομολόγοι προειδοποιούν ότι η ανάκαμψη παραμένει εύθραυστη και εξαρτάται από τον τουρισμό."},
    {"Το δημοτικό συμβούλιο ενέκρινε κατά πλειοψηφία το σχέδιο για τα νέα σχολεία.",
     "Η αντιπολίτευση κατέθεσε δεκατέσσερις τροπολογίες και ζήτησε ονομαστική ψηφοφορία.",
     "Ο δήμαρχος υποσχέθηκε ότι τα έργα θα αρχίσουν πριν από το τέλος του χειμώνα.",
     "Οι κάτοικοι γέμισαν την αίθουσα και παρακολούθησαν τη συζήτηση ως αργά τη νύχτα.",
     "Η επιτροπή διαφάνειας θα δημοσιεύει κάθε μήνα τις δαπάνες και τις συμβάσεις του δήμου.",
     "Για πρώτη φορά οι νέοι άνω των δεκαέξι ετών θα εκφράσουν γνώμη σε τοπική διαβούλευση.",
     "Το κείμενο της απόφασης θα αναρτηθεί σήμερα και θα ισχύσει έπειτα από τριάντα ημέρες."},
    {"Η έκθεση φιλοξενεί εκατόν είκοσι έργα ζωγράφων που δεν έχουν παρουσιαστεί ποτέ μαζί.",
     "Το θέατρο του λιμανιού ανοίγει ξανά έπειτα από έξι χρόνια εργασιών.",
     "Η ορχήστρα νέων θα παίξει σε πλατείες, αυλές και παλιές αποθήκες.",
     "Οι επιμελητές ξεκίνησαν από μια ξεχασμένη συλλογή φωτογραφιών του μεσοπολέμου.",
     "Τα εισιτήρια της πρεμιέρας εξαντλήθηκαν μέσα σε λίγες ώρες.",
     "Η βιβλιοθήκη ψηφιοποίησε χιλιάδες σελίδες από χειρόγραφα και παλιές εφημερίδες.",
     "Παράλληλα οργανώνονται εργαστήρια για παιδιά και ξεναγήσεις με ελεύθερη είσοδο."},
    {"Η ομάδα κέρδισε με 3-1 και ανέβηκε στην τρίτη θέση της βαθμολογίας.",
     "Ο προπονητής μίλησε για μια νίκη χαρακτήρα έπειτα από δύσκολες εβδομάδες.",
     "Το πρώτο γκολ ήρθε στο δέκατο λεπτό, ύστερα από μια άψογη αντεπίθεση.",
     "Στους αγώνες στίβου καταρρίφθηκαν δύο ρεκόρ εφήβων που άντεχαν από το 1988.",
     "Οι ιστιοπλόοι αντιμετώπισαν άνεμο επτά μποφόρ και ψηλό κύμα σε όλη τη διαδρομή.",
     "Η επόμενη αγωνιστική φέρνει ένα ντέρμπι που περιμένει όλη η πόλη.",
     "Το κλειστό γυμναστήριο ήταν γεμάτο, με ουρές έξω από τα εκδοτήρια."},
    {"Η λειψυδρία υποχρέωσε τρία νησιά να περιορίσουν την παροχή νερού τις νυχτερινές ώρες.",
     "Εθελοντές φύτεψαν δέκα χιλιάδες πεύκα στις πλαγιές που κάηκαν το περασμένο καλοκαίρι.",
     "Οι επιστήμονες μέτρησαν την υψηλότερη θερμοκρασία θάλασσας των τελευταίων σαράντα ετών.",
     "Το νέο αιολικό πάρκο θα καλύπτει τις ανάγκες είκοσι χιλιάδων νοικοκυριών.",
     "Στον υγρότοπο επέστρεψαν φέτος οι ερωδιοί και οι βαλτόπαπιες.",
     "Οι ψαράδες συμφώνησαν να μη ρίχνουν δίχτυα κοντά στα λιβάδια της Ποσειδωνίας.",
     "Η υπηρεσία προβλέπει ισχυρές βροχές και συνιστά προσοχή στα χαμηλά σημεία."},
    {"Το πανεπιστήμιο παρουσίασε έναν αισθητήρα που εντοπίζει διαρροές νερού μέσα σε λίγα λεπτά.",
     "Οι μαθητές έφτιαξαν ένα ρομπότ που ξεχωρίζει τα ανακυκλώσιμα υλικά.",
     "Το δίκτυο οπτικών ινών φτάνει πλέον και στα πιο απομακρυσμένα χωριά.",
     "Οι γιατροί συμβουλεύουν από απόσταση ασθενείς που ως τώρα ταξίδευαν ώρες.",
     "Οι προγραμματιστές άνοιξαν τον κώδικα, ώστε να τον ελέγξει όποιος θέλει.",
     "Η πλατφόρμα δοκιμάστηκε επί έξι μήνες σε δέκα δήμους χωρίς σοβαρά προβλήματα.",
     "Οι ειδικοί τονίζουν ότι η προστασία των δεδομένων πρέπει να προηγείται."},
    {"«Κάναμε ένα βήμα που περιμέναμε χρόνια», είπε στην εφημερίδα μας ένας από τους πρωταγωνιστές.",
     "Οι αντιδράσεις ήταν ανάμεικτες, αλλά οι περισσότεροι συμφωνούν ότι η συζήτηση έπρεπε να ανοίξει.",
     "Την εικόνα συμπληρώνουν τα στοιχεία μιας έρευνας που θα παρουσιαστεί την ερχόμενη εβδομάδα.",
     "Ρωτήσαμε κατοίκους, επαγγελματίες και ειδικούς· οι απαντήσεις τους δείχνουν συγκρατημένη αισιοδοξία.",
     "Όσοι παρακολουθούν την υπόθεση από την αρχή θυμούνται ότι παρόμοιες υποσχέσεις είχαν δοθεί και παλαιότερα.",
     "Ωστόσο κανείς δεν αρνείται ότι χωρίς χρήματα και υπομονή τίποτα δεν θα προχωρήσει.",
     "Το θέμα θα απασχολήσει και πάλι τις επόμενες ημέρες, καθώς εκκρεμούν σημαντικές λεπτομέρειες."},
}};

constexpr std::array<Sentences, ThemeCount> englishSentences{{
    {"Exports of olive oil rose by 8% in the first quarter, according to figures released by the growers.",
     "Small firms are asking for faster procedures and for tax rules that stay the same for five years.",
     "The new loan scheme is aimed at family businesses with fewer than ten employees.",
     "On the labour market the demand for craftsmen now far exceeds the supply.",
     "The ports of the region handled more ships this year than ever before.",
     "Fuel prices remained unchanged, while the cost of transport fell slightly.",
     "Economists warn that the recovery is still fragile and depends on the tourist season."},
    {"The town council approved the plan for the new schools by a clear majority.",
     "The opposition tabled fourteen amendments and demanded a vote by name.",
     "The mayor promised that work would begin before the end of the winter.",
     "Residents filled the hall and followed the debate until late at night.",
     "A committee will publish the spending and the contracts of the town every month.",
     "For the first time people above sixteen will be heard in a local consultation.",
     "The text of the decision will be published today and takes effect in thirty days."},
    {"The exhibition brings together one hundred and twenty paintings never shown side by side.",
     "The theatre at the harbour opens again after six years of restoration.",
     "The youth orchestra will play in squares, courtyards and old warehouses.",
     "The curators started from a forgotten collection of photographs taken between the wars.",
     "Tickets for the opening night were sold out within hours.",
     "The library has scanned thousands of pages of manuscripts and old newspapers.",
     "There will also be workshops for children and guided tours free of charge."},
    {"The team won 3-1 and climbed to third place in the table.",
     "The coach spoke of a victory of character after some difficult weeks.",
     "The first goal came in the tenth minute after a flawless counter-attack.",
     "Two youth records that had stood since 1988 fell at the athletics meeting.",
     "The sailors met winds of force seven and high waves along the whole course.",
     "The next round brings a derby that the whole town is waiting for.",
     "The sports hall was full, with queues in front of the ticket windows."},
    {"The drought has forced three islands to cut the supply of water during the night.",
     "Volunteers planted ten thousand pines on the slopes that burned last summer.",
     "Scientists measured the highest sea temperature of the last forty years.",
     "The new wind farm will cover the needs of twenty thousand households.",
     "Herons and marbled ducks have returned to the wetland this year.",
     "The fishermen agreed to keep their nets away from the seagrass meadows.",
     "The weather service expects heavy rain and advises caution in low-lying areas."},
    {"The university presented a sensor that finds leaking water pipes within minutes.",
     "Pupils built a robot that sorts materials that can be recycled.",
     "The fibre network now reaches even the most remote villages.",
     "Doctors advise patients from afar who used to travel for hours.",
     "The programmers have opened their code, so that anyone may examine it.",
     "The platform was tested in ten towns for six months without serious trouble.",
     "Experts stress that the protection of personal data has to come first."},
    {"\"We have taken a step that was long overdue,\" one of those involved told this newspaper.",
     "Reactions were mixed, but most agree that the debate had to be opened.",
     "The picture is completed by a survey that will be presented next week.",
     "We asked residents, tradespeople and experts; their answers show cautious optimism.",
     "Those who have followed the matter from the start recall that similar promises were made before.",
     "Still, nobody denies that nothing will move forward without money and patience.",
     "The matter will be back in the coming days, since important details are still open."},
}};

struct Headline {
    PaperNumber Newspaper;
    Theme Subject;
    std::size_t Lead;  // which sentence of the theme comes first
    const char* Title;
    const char* Category;
    const char* Type;
    int Picture;
};

// One article has no title, one a very long one, one a category with nothing behind its last bar, some no type.
constexpr std::array<Headline, 14> firstDay{{
    {Anem, Politics, 0, "Ψηφίστηκε το σχέδιο για τα νέα σχολεία", "ΠΟΛΙΤΙΚΗ", "ΕΙΔΗΣΗ", 1},
    {Anem, Culture, 1, "Ανοίγει ξανά το θέατρο του λιμανιού", "ΠΟΛΙΤΙΣΜΟΣ", "ΑΡΘΡΟ", 0},
    {Anem, Nature, 6, "", "ΠΕΡΙΒΑΛΛΟΝ", "ΣΧΟΛΙΟ", -1},
    {Diav, Economy, 0, "Άνοδος των εξαγωγών ελαιολάδου", "ΟΙΚΟΝΟΜΙΑ", "ΕΙΔΗΣΗ", 3},
    {Diav, Economy, 1,
     "Ποια μέτρα ζητούν οι μικρές επιχειρήσεις από το δημοτικό συμβούλιο και γιατί η απόφαση για τα τέλη του λιμανιού "
     "αναβάλλεται για τρίτη φορά μέσα σε έναν χρόνο",
     "ΟΙΚΟΝΟΜΙΑ|ΠΟΛΙΤΙΚΗ", "ΑΡΘΡΟ|ΣΧΟΛΙΟ", 4},
    {Diav, Science, 2, "Οπτικές ίνες και στα ορεινά χωριά", "ΟΙΚΟΝΟΜΙΑ|", "", -1},
    {Glar, Sport, 0, "Νίκη χαρακτήρα με ανατροπή", "ΑΘΛΗΤΙΚΑ", "ΕΙΔΗΣΗ", -1},
    {Glar, Nature, 4, "Ερωδιοί στον υγρότοπο: η επιστροφή", "ΠΕΡΙΒΑΛΛΟΝ", "ΡΕΠΟΡΤΑΖ", 2},
    {Kyma, Science, 1, "Ρομπότ από μαθητές για την ανακύκλωση", "ΤΕΧΝΟΛΟΓΙΑ|ΠΑΙΔΕΙΑ", "ΣΥΝΕΝΤΕΥΞΗ", -1},
    {Kyma, Culture, 3, "Φωτογραφίες του μεσοπολέμου", "ΠΟΛΙΤΙΣΜΟΣ", "ΡΕΠΟΡΤΑΖ", 5},
    {Lant, Economy, 4, "Ports report their busiest year", "ECONOMY|SHIPPING", "NEWS", 0},
    {Lant, Science, 0, "A sensor that hears leaking pipes", "TECHNOLOGY", "INTERVIEW", -1},
    {Thym, Nature, 3, "Wind farm to power twenty thousand homes", "ENVIRONMENT|ENERGY", "NEWS", 2},
    {Thym, Culture, 2, "Music in courtyards and warehouses", "CULTURE", "NEWS|COMMENT", -1},
}};

constexpr std::array<Headline, 12> secondDay{{
    {Anem, Economy, 5, "Τα καύσιμα έμειναν σταθερά, τα ναύλα έπεσαν", "ΟΙΚΟΝΟΜΙΑ", "ΕΙΔΗΣΗ", 3},
    {Anem, Sport, 3, "Δύο ρεκόρ εφήβων σε μία ημέρα", "ΑΘΛΗΤΙΚΑ", "ΡΕΠΟΡΤΑΖ", -1},
    {Diav, Science, 4, "Ο κώδικας ανοίγει για όλους", "ΤΕΧΝΟΛΟΓΙΑ", "ΣΥΝΕΝΤΕΥΞΗ", -1},
    {Diav, Nature, 0, "Λειψυδρία: ποιος πληρώνει το νερό", "ΠΕΡΙΒΑΛΛΟΝ|ΟΙΚΟΝΟΜΙΑ", "ΑΡΘΡΟ", 2},
    {Glar, Politics, 5, "Ψήφος από τα δεκαέξι στις διαβουλεύσεις", "ΠΟΛΙΤΙΚΗ", "ΕΙΔΗΣΗ", 1},
    {Glar, Culture, 2, "Η ορχήστρα νέων στις πλατείες", "ΠΟΛΙΤΙΣΜΟΣ", "ΕΙΔΗΣΗ", -1},
    {Kyma, Nature, 1, "Δέκα χιλιάδες πεύκα στις καμένες πλαγιές", "ΠΕΡΙΒΑΛΛΟΝ", "ΡΕΠΟΡΤΑΖ", 4},
    {Kyma, Economy, 3, "Ζητούνται τεχνίτες", "ΟΙΚΟΝΟΜΙΑ|ΕΡΓΑΣΙΑ", "ΑΡΘΡΟ", -1},
    {Lant, Politics, 0, "Council votes for new schools", "POLITICS", "NEWS", 1},
    {Lant, Sport, 4, "Sailors brave force seven", "SPORTS", "REPORT", 0},
    {Thym, Economy, 2, "Loans for the smallest firms", "ECONOMY", "NEWS", 5},
    {Thym, Science, 3, "The doctor is on the line", "TECHNOLOGY|HEALTH", "COMMENT", -1},
}};

constexpr std::array<Headline, 13> thirdDay{{
    {Anem, Science, 0, "Αισθητήρας ακούει τις διαρροές", "ΤΕΧΝΟΛΟΓΙΑ", "ΕΙΔΗΣΗ", -1},
    {Anem, Politics, 4, "Κάθε μήνα στο φως οι δαπάνες του δήμου", "ΠΟΛΙΤΙΚΗ|ΟΙΚΟΝΟΜΙΑ", "ΑΡΘΡΟ", 4},
    {Diav, Economy, 6, "Εύθραυστη ανάκαμψη, λένε οι οικονομολόγοι", "ΟΙΚΟΝΟΜΙΑ", "ΣΧΟΛΙΟ", 3},
    {Diav, Culture, 4, "Πόσο κοστίζει μια πρεμιέρα", "ΠΟΛΙΤΙΣΜΟΣ|ΟΙΚΟΝΟΜΙΑ", "ΑΡΘΡΟ", -1},
    {Glar, Nature, 2, "Η θάλασσα θερμαίνεται", "ΠΕΡΙΒΑΛΛΟΝ", "ΕΙΔΗΣΗ", 0},
    {Glar, Sport, 5, "Ουρές για το ντέρμπι της πόλης", "ΑΘΛΗΤΙΚΑ", "ΕΙΔΗΣΗ", -1},
    {Glar, Culture, 5, "Χειρόγραφα στην οθόνη", "ΠΟΛΙΤΙΣΜΟΣ|ΤΕΧΝΟΛΟΓΙΑ", "ΡΕΠΟΡΤΑΖ", 5},
    {Kyma, Politics, 1, "Νυχτερινή συνεδρίαση με δεκατέσσερις τροπολογίες", "ΠΟΛΙΤΙΚΗ", "ΡΕΠΟΡΤΑΖ", 1},
    {Kyma, Sport, 4, "Ιστιοπλοΐα: Αϊβαλιώτης ο νικητής", "ΑΘΛΗΤΙΚΑ", "ΣΥΝΕΝΤΕΥΞΗ", -1},
    {Lant, Nature, 5, "Fishermen spare the seagrass", "ENVIRONMENT", "REPORT", 2},
    {Lant, Culture, 0, "Never seen side by side", "CULTURE", "COMMENT", -1},
    {Thym, Politics, 5, "A seat for the young", "POLITICS", "NEWS", 4},
    {Thym, Economy, 5, "Freight gets cheaper, fuel does not", "ECONOMY", "NEWS", -1},
}};

// All sentences of the theme, from the lead on, and the general ones between them, from another one on each time.
std::vector<std::string> sentencesOf(const Headline& headline, std::size_t order) {
    const auto& themes = papers[headline.Newspaper].IsGreek ? greekSentences : englishSentences;
    std::vector<std::string> sentences;
    for (std::size_t i = 0; i < sentencesOfATheme; ++i) {
        sentences.emplace_back(themes[headline.Subject][(headline.Lead + i) % sentencesOfATheme]);
        if (i > 0) sentences.emplace_back(themes[General][(order + i) % (sentencesOfATheme - 1)]);
    }
    sentences.emplace_back(themes[General].back());
    return sentences;
}

template <std::size_t count>
std::vector<SampleArticle> articlesOf(const std::array<Headline, count>& headlines) {
    std::vector<SampleArticle> articles;
    int number = 0;
    for (const auto& headline : headlines) {
        const Paper& paper = papers[headline.Newspaper];
        const bool isSamePaper = !articles.empty() && articles.back().Newspaper == paper.Name;
        number = isSamePaper ? number + 1 : 1;
        const auto order = articles.size();
        articles.push_back({paper.Code + std::string("0") + std::to_string(number), paper.Name, headline.Title,
                            headline.Category, headline.Type, paper.IsGreek, 1 + int(order * 5 % 23), headline.Picture,
                            sentencesOf(headline, order)});
    }
    return articles;
}

}  // namespace

std::vector<SampleArticle> sampleArticles(std::size_t set) {
    if (set == 0) return articlesOf(firstDay);
    return set == 1 ? articlesOf(secondDay) : articlesOf(thirdDay);
}

std::string sampleAlert(std::size_t set) {
    constexpr std::array<const char*, sampleSets> alerts{
        "Προσοχή: σήμερα η ύλη θα συμπληρωθεί στις 11:00 με τις μεσημβρινές εκδόσεις.\r\n"
        "Today's clippings will be completed at 11:00.\r\n",
        "Η υπηρεσία δεν θα λειτουργήσει την Κυριακή από τις 02:00 ως τις 04:00.\r\n", ""};
    return alerts[set];
}

}  // namespace vell::demo

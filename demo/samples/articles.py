# SPDX-License-Identifier: MIT
"""What the sample clippings say. None of these newspapers exists, and nothing that they report happened."""

ALERTS = {
    "first": "Προσοχή: σήμερα η ύλη θα συμπληρωθεί στις 11:00 με τις μεσημβρινές εκδόσεις.\r\n"
             "Today's clippings will be completed at 11:00.\r\n",
    "second": "Η υπηρεσία δεν θα λειτουργήσει την Κυριακή από τις 02:00 ως τις 04:00.\r\n",
}

# Name of the newspaper, language, and who signs its articles.
PAPERS = {
    "ANEM": ("Ο Ανεμοδείκτης", "el", ("Της Μαρίνας Αλεξίου", "Του Πέτρου Δαμασκηνού")),
    "DIAV": ("Οικονομικός Διαβήτης", "el", ("Του Νίκου Σαρρή", "Της Δάφνης Ροδίτη")),
    "GLAR": ("Πρωινός Γλάρος", "el", ("Ρεπορτάζ: Λ. Φωκάς", "Ρεπορτάζ: Αθ. Μελά")),
    "KYMA": ("Εσπερινό Κύμα", "el", ("Της Ιωάννας Βλαστού", "Του Ορέστη Καλλέργη")),
    "LANT": ("The Harbour Lantern", "en", ("By Clara Whitcombe", "By Owen Tarrant")),
    "THYM": ("Thyme Hill Gazette", "en", ("By Edith Marlowe", "By Samuel Pryce")),
}

CAPTIONS = {
    "harbour": ("Ιστιοφόρα ανοιχτά του λιμανιού, αργά το απόγευμα.", "Sails off the harbour, late in the afternoon."),
    "council": ("Το δημοτικό μέγαρο το βράδυ της συνεδρίασης.", "The town hall on the evening of the session."),
    "windpark": ("Ανεμογεννήτριες στις βόρειες πλαγιές.", "Turbines on the northern slopes."),
    "chart": ("Δείκτης όγκου, τελευταία δώδεκα τρίμηνα (2012 = 100).", "Index of volume, last twelve quarters."),
    "street": ("Η παλιά πόλη, όπως φαίνεται από τον μόλο.", "The old town, seen from the pier."),
    "archive": ("Από το αρχείο: η πόλη πριν από τον πόλεμο.", "From the archive: the town before the war."),
}

# Seven sentences on each theme; any of the first may lead an article.
GREEK = {
    "economy": [
        "Οι εξαγωγές ελαιολάδου αυξήθηκαν κατά 8% το πρώτο τρίμηνο, σύμφωνα με τα στοιχεία των παραγωγών.",
        "Οι μικρές επιχειρήσεις ζητούν ταχύτερες διαδικασίες και σταθερούς φορολογικούς κανόνες για την επόμενη πενταετία.",
        "Το νέο πρόγραμμα δανείων αφορά κυρίως οικογενειακές μονάδες με λιγότερους από δέκα εργαζομένους.",
        "Στην αγορά εργασίας η ζήτηση για τεχνίτες ξεπερνά πλέον κατά πολύ την προσφορά.",
        "Τα λιμάνια της περιοχής εξυπηρέτησαν φέτος περισσότερα πλοία από κάθε άλλη χρονιά.",
        "Οι τιμές των καυσίμων έμειναν αμετάβλητες, ενώ το κόστος μεταφοράς υποχώρησε ελαφρά.",
        "Οι οικονομολόγοι προειδοποιούν ότι η ανάκαμψη παραμένει εύθραυστη και εξαρτάται από τον τουρισμό.",
    ],
    "politics": [
        "Το δημοτικό συμβούλιο ενέκρινε κατά πλειοψηφία το σχέδιο για τα νέα σχολεία.",
        "Η αντιπολίτευση κατέθεσε δεκατέσσερις τροπολογίες και ζήτησε ονομαστική ψηφοφορία.",
        "Ο δήμαρχος υποσχέθηκε ότι τα έργα θα αρχίσουν πριν από το τέλος του χειμώνα.",
        "Οι κάτοικοι γέμισαν την αίθουσα και παρακολούθησαν τη συζήτηση ως αργά τη νύχτα.",
        "Η επιτροπή διαφάνειας θα δημοσιεύει κάθε μήνα τις δαπάνες και τις συμβάσεις του δήμου.",
        "Για πρώτη φορά οι νέοι άνω των δεκαέξι ετών θα εκφράσουν γνώμη σε τοπική διαβούλευση.",
        "Το κείμενο της απόφασης θα αναρτηθεί σήμερα και θα ισχύσει έπειτα από τριάντα ημέρες.",
    ],
    "culture": [
        "Η έκθεση φιλοξενεί εκατόν είκοσι έργα ζωγράφων που δεν έχουν παρουσιαστεί ποτέ μαζί.",
        "Το θέατρο του λιμανιού ανοίγει ξανά έπειτα από έξι χρόνια εργασιών.",
        "Η ορχήστρα νέων θα παίξει σε πλατείες, αυλές και παλιές αποθήκες.",
        "Οι επιμελητές ξεκίνησαν από μια ξεχασμένη συλλογή φωτογραφιών του μεσοπολέμου.",
        "Τα εισιτήρια της πρεμιέρας εξαντλήθηκαν μέσα σε λίγες ώρες.",
        "Η βιβλιοθήκη ψηφιοποίησε χιλιάδες σελίδες από χειρόγραφα και παλιές εφημερίδες.",
        "Παράλληλα οργανώνονται εργαστήρια για παιδιά και ξεναγήσεις με ελεύθερη είσοδο.",
    ],
    "sport": [
        "Η ομάδα κέρδισε με 3-1 και ανέβηκε στην τρίτη θέση της βαθμολογίας.",
        "Ο προπονητής μίλησε για μια νίκη χαρακτήρα έπειτα από δύσκολες εβδομάδες.",
        "Το πρώτο γκολ ήρθε στο δέκατο λεπτό, ύστερα από μια άψογη αντεπίθεση.",
        "Στους αγώνες στίβου καταρρίφθηκαν δύο ρεκόρ εφήβων που άντεχαν από το 1988.",
        "Οι ιστιοπλόοι αντιμετώπισαν άνεμο επτά μποφόρ και ψηλό κύμα σε όλη τη διαδρομή.",
        "Η επόμενη αγωνιστική φέρνει ένα ντέρμπι που περιμένει όλη η πόλη.",
        "Το κλειστό γυμναστήριο ήταν γεμάτο, με ουρές έξω από τα εκδοτήρια.",
    ],
    "nature": [
        "Η λειψυδρία υποχρέωσε τρία νησιά να περιορίσουν την παροχή νερού τις νυχτερινές ώρες.",
        "Εθελοντές φύτεψαν δέκα χιλιάδες πεύκα στις πλαγιές που κάηκαν το περασμένο καλοκαίρι.",
        "Οι επιστήμονες μέτρησαν την υψηλότερη θερμοκρασία θάλασσας των τελευταίων σαράντα ετών.",
        "Το νέο αιολικό πάρκο θα καλύπτει τις ανάγκες είκοσι χιλιάδων νοικοκυριών.",
        "Στον υγρότοπο επέστρεψαν φέτος οι ερωδιοί και οι βαλτόπαπιες.",
        "Οι ψαράδες συμφώνησαν να μη ρίχνουν δίχτυα κοντά στα λιβάδια της Ποσειδωνίας.",
        "Η υπηρεσία προβλέπει ισχυρές βροχές και συνιστά προσοχή στα χαμηλά σημεία.",
    ],
    "science": [
        "Το πανεπιστήμιο παρουσίασε έναν αισθητήρα που εντοπίζει διαρροές νερού μέσα σε λίγα λεπτά.",
        "Οι μαθητές έφτιαξαν ένα ρομπότ που ξεχωρίζει τα ανακυκλώσιμα υλικά.",
        "Το δίκτυο οπτικών ινών φτάνει πλέον και στα πιο απομακρυσμένα χωριά.",
        "Οι γιατροί συμβουλεύουν από απόσταση ασθενείς που ως τώρα ταξίδευαν ώρες.",
        "Οι προγραμματιστές άνοιξαν τον κώδικα, ώστε να τον ελέγξει όποιος θέλει.",
        "Η πλατφόρμα δοκιμάστηκε επί έξι μήνες σε δέκα δήμους χωρίς σοβαρά προβλήματα.",
        "Οι ειδικοί τονίζουν ότι η προστασία των δεδομένων πρέπει να προηγείται.",
    ],
    "general": [
        "«Κάναμε ένα βήμα που περιμέναμε χρόνια», είπε στην εφημερίδα μας ένας από τους πρωταγωνιστές.",
        "Οι αντιδράσεις ήταν ανάμεικτες, αλλά οι περισσότεροι συμφωνούν ότι η συζήτηση έπρεπε να ανοίξει.",
        "Την εικόνα συμπληρώνουν τα στοιχεία μιας έρευνας που θα παρουσιαστεί την ερχόμενη εβδομάδα.",
        "Ρωτήσαμε κατοίκους, επαγγελματίες και ειδικούς· οι απαντήσεις τους δείχνουν συγκρατημένη αισιοδοξία.",
        "Όσοι παρακολουθούν την υπόθεση από την αρχή θυμούνται ότι παρόμοιες υποσχέσεις είχαν δοθεί και παλαιότερα.",
        "Ωστόσο κανείς δεν αρνείται ότι χωρίς χρήματα και υπομονή τίποτα δεν θα προχωρήσει.",
        "Το θέμα θα απασχολήσει και πάλι τις επόμενες ημέρες, καθώς εκκρεμούν σημαντικές λεπτομέρειες.",
    ],
}

ENGLISH = {
    "economy": [
        "Exports of olive oil rose by 8% in the first quarter, according to figures released by the growers.",
        "Small firms are asking for faster procedures and for tax rules that stay the same for five years.",
        "The new loan scheme is aimed at family businesses with fewer than ten employees.",
        "On the labour market the demand for craftsmen now far exceeds the supply.",
        "The ports of the region handled more ships this year than ever before.",
        "Fuel prices remained unchanged, while the cost of transport fell slightly.",
        "Economists warn that the recovery is still fragile and depends on the tourist season.",
    ],
    "politics": [
        "The town council approved the plan for the new schools by a clear majority.",
        "The opposition tabled fourteen amendments and demanded a vote by name.",
        "The mayor promised that work would begin before the end of the winter.",
        "Residents filled the hall and followed the debate until late at night.",
        "A committee will publish the spending and the contracts of the town every month.",
        "For the first time people above sixteen will be heard in a local consultation.",
        "The text of the decision will be published today and takes effect in thirty days.",
    ],
    "culture": [
        "The exhibition brings together one hundred and twenty paintings never shown side by side.",
        "The theatre at the harbour opens again after six years of restoration.",
        "The youth orchestra will play in squares, courtyards and old warehouses.",
        "The curators started from a forgotten collection of photographs taken between the wars.",
        "Tickets for the opening night were sold out within hours.",
        "The library has scanned thousands of pages of manuscripts and old newspapers.",
        "There will also be workshops for children and guided tours free of charge.",
    ],
    "sport": [
        "The team won 3-1 and climbed to third place in the table.",
        "The coach spoke of a victory of character after some difficult weeks.",
        "The first goal came in the tenth minute after a flawless counter-attack.",
        "Two youth records that had stood since 1988 fell at the athletics meeting.",
        "The sailors met winds of force seven and high waves along the whole course.",
        "The next round brings a derby that the whole town is waiting for.",
        "The sports hall was full, with queues in front of the ticket windows.",
    ],
    "nature": [
        "The drought has forced three islands to cut the supply of water during the night.",
        "Volunteers planted ten thousand pines on the slopes that burned last summer.",
        "Scientists measured the highest sea temperature of the last forty years.",
        "The new wind farm will cover the needs of twenty thousand households.",
        "Herons and marbled ducks have returned to the wetland this year.",
        "The fishermen agreed to keep their nets away from the seagrass meadows.",
        "The weather service expects heavy rain and advises caution in low-lying areas.",
    ],
    "science": [
        "The university presented a sensor that finds leaking water pipes within minutes.",
        "Pupils built a robot that sorts materials that can be recycled.",
        "The fibre network now reaches even the most remote villages.",
        "Doctors advise patients from afar who used to travel for hours.",
        "The programmers have opened their code, so that anyone may examine it.",
        "The platform was tested in ten towns for six months without serious trouble.",
        "Experts stress that the protection of personal data has to come first.",
    ],
    "general": [
        '"We have taken a step that was long overdue," one of those involved told this newspaper.',
        "Reactions were mixed, but most agree that the debate had to be opened.",
        "The picture is completed by a survey that will be presented next week.",
        "We asked residents, tradespeople and experts; their answers show cautious optimism.",
        "Those who have followed the matter from the start recall that similar promises were made before.",
        "Still, nobody denies that nothing will move forward without money and patience.",
        "The matter will be back in the coming days, since important details are still open.",
    ],
}

# Newspaper, theme, which sentence leads, title, categories, types, picture (none: text alone). One has no title, some no
# type, one a very long title, one a category with nothing behind its last bar.
DAYS = {
    "first": [
        ("ANEM", "politics", 0, "Ψηφίστηκε το σχέδιο για τα νέα σχολεία", "ΠΟΛΙΤΙΚΗ", "ΕΙΔΗΣΗ", "council"),
        ("ANEM", "culture", 1, "Ανοίγει ξανά το θέατρο του λιμανιού", "ΠΟΛΙΤΙΣΜΟΣ", "ΑΡΘΡΟ", "harbour"),
        ("ANEM", "nature", 6, "", "ΠΕΡΙΒΑΛΛΟΝ", "ΣΧΟΛΙΟ", None),
        ("DIAV", "economy", 0, "Άνοδος των εξαγωγών ελαιολάδου", "ΟΙΚΟΝΟΜΙΑ", "ΕΙΔΗΣΗ", "chart"),
        ("DIAV", "economy", 1,
         "Ποια μέτρα ζητούν οι μικρές επιχειρήσεις από το δημοτικό συμβούλιο και γιατί η απόφαση για τα τέλη του "
         "λιμανιού αναβάλλεται για τρίτη φορά μέσα σε έναν χρόνο",
         "ΟΙΚΟΝΟΜΙΑ|ΠΟΛΙΤΙΚΗ", "ΑΡΘΡΟ|ΣΧΟΛΙΟ", "street"),
        ("DIAV", "science", 2, "Οπτικές ίνες και στα ορεινά χωριά", "ΟΙΚΟΝΟΜΙΑ|", "", None),
        ("GLAR", "sport", 0, "Νίκη χαρακτήρα με ανατροπή", "ΑΘΛΗΤΙΚΑ", "ΕΙΔΗΣΗ", None),
        ("GLAR", "nature", 4, "Ερωδιοί στον υγρότοπο: η επιστροφή", "ΠΕΡΙΒΑΛΛΟΝ", "ΡΕΠΟΡΤΑΖ", "windpark"),
        ("KYMA", "science", 1, "Ρομπότ από μαθητές για την ανακύκλωση", "ΤΕΧΝΟΛΟΓΙΑ|ΠΑΙΔΕΙΑ", "ΣΥΝΕΝΤΕΥΞΗ", None),
        ("KYMA", "culture", 3, "Φωτογραφίες του μεσοπολέμου", "ΠΟΛΙΤΙΣΜΟΣ", "ΡΕΠΟΡΤΑΖ", "archive"),
        ("LANT", "economy", 4, "Ports report their busiest year", "ECONOMY|SHIPPING", "NEWS", "harbour"),
        ("LANT", "science", 0, "A sensor that hears leaking pipes", "TECHNOLOGY", "INTERVIEW", None),
        ("THYM", "nature", 3, "Wind farm to power twenty thousand homes", "ENVIRONMENT|ENERGY", "NEWS", "windpark"),
        ("THYM", "culture", 2, "Music in courtyards and warehouses", "CULTURE", "NEWS|COMMENT", None),
    ],
    "second": [
        ("ANEM", "economy", 5, "Τα καύσιμα έμειναν σταθερά, τα ναύλα έπεσαν", "ΟΙΚΟΝΟΜΙΑ", "ΕΙΔΗΣΗ", "chart"),
        ("ANEM", "sport", 3, "Δύο ρεκόρ εφήβων σε μία ημέρα", "ΑΘΛΗΤΙΚΑ", "ΡΕΠΟΡΤΑΖ", None),
        ("DIAV", "science", 4, "Ο κώδικας ανοίγει για όλους", "ΤΕΧΝΟΛΟΓΙΑ", "ΣΥΝΕΝΤΕΥΞΗ", None),
        ("DIAV", "nature", 0, "Λειψυδρία: ποιος πληρώνει το νερό", "ΠΕΡΙΒΑΛΛΟΝ|ΟΙΚΟΝΟΜΙΑ", "ΑΡΘΡΟ", "windpark"),
        ("GLAR", "politics", 5, "Ψήφος από τα δεκαέξι στις διαβουλεύσεις", "ΠΟΛΙΤΙΚΗ", "ΕΙΔΗΣΗ", "council"),
        ("GLAR", "culture", 2, "Η ορχήστρα νέων στις πλατείες", "ΠΟΛΙΤΙΣΜΟΣ", "ΕΙΔΗΣΗ", None),
        ("KYMA", "nature", 1, "Δέκα χιλιάδες πεύκα στις καμένες πλαγιές", "ΠΕΡΙΒΑΛΛΟΝ", "ΡΕΠΟΡΤΑΖ", "street"),
        ("KYMA", "economy", 3, "Ζητούνται τεχνίτες", "ΟΙΚΟΝΟΜΙΑ|ΕΡΓΑΣΙΑ", "ΑΡΘΡΟ", None),
        ("LANT", "politics", 0, "Council votes for new schools", "POLITICS", "NEWS", "council"),
        ("LANT", "sport", 4, "Sailors brave force seven", "SPORTS", "REPORT", "harbour"),
        ("THYM", "economy", 2, "Loans for the smallest firms", "ECONOMY", "NEWS", "archive"),
        ("THYM", "science", 3, "The doctor is on the line", "TECHNOLOGY|HEALTH", "COMMENT", None),
    ],
    "third": [
        ("ANEM", "science", 0, "Αισθητήρας ακούει τις διαρροές", "ΤΕΧΝΟΛΟΓΙΑ", "ΕΙΔΗΣΗ", None),
        ("ANEM", "politics", 4, "Κάθε μήνα στο φως οι δαπάνες του δήμου", "ΠΟΛΙΤΙΚΗ|ΟΙΚΟΝΟΜΙΑ", "ΑΡΘΡΟ", "street"),
        ("DIAV", "economy", 6, "Εύθραυστη ανάκαμψη, λένε οι οικονομολόγοι", "ΟΙΚΟΝΟΜΙΑ", "ΣΧΟΛΙΟ", "chart"),
        ("DIAV", "culture", 4, "Πόσο κοστίζει μια πρεμιέρα", "ΠΟΛΙΤΙΣΜΟΣ|ΟΙΚΟΝΟΜΙΑ", "ΑΡΘΡΟ", None),
        ("GLAR", "nature", 2, "Η θάλασσα θερμαίνεται", "ΠΕΡΙΒΑΛΛΟΝ", "ΕΙΔΗΣΗ", "harbour"),
        ("GLAR", "sport", 5, "Ουρές για το ντέρμπι της πόλης", "ΑΘΛΗΤΙΚΑ", "ΕΙΔΗΣΗ", None),
        ("GLAR", "culture", 5, "Χειρόγραφα στην οθόνη", "ΠΟΛΙΤΙΣΜΟΣ|ΤΕΧΝΟΛΟΓΙΑ", "ΡΕΠΟΡΤΑΖ", "archive"),
        ("KYMA", "politics", 1, "Νυχτερινή συνεδρίαση με δεκατέσσερις τροπολογίες", "ΠΟΛΙΤΙΚΗ", "ΡΕΠΟΡΤΑΖ", "council"),
        ("KYMA", "sport", 4, "Ιστιοπλοΐα: Αϊβαλιώτης ο νικητής", "ΑΘΛΗΤΙΚΑ", "ΣΥΝΕΝΤΕΥΞΗ", None),
        ("LANT", "nature", 5, "Fishermen spare the seagrass", "ENVIRONMENT", "REPORT", "windpark"),
        ("LANT", "culture", 0, "Never seen side by side", "CULTURE", "COMMENT", None),
        ("THYM", "politics", 5, "A seat for the young", "POLITICS", "NEWS", "street"),
        ("THYM", "economy", 5, "Freight gets cheaper, fuel does not", "ECONOMY", "NEWS", None),
    ],
}

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="el" sourcelanguage="en">
<context>
    <name>ask</name>
    <message>
        <source>1 row</source>
        <translation>1 γραμμή</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 γραμμές</translation>
    </message>
    <message>
        <source>%1: type a name or a number, then Enter. Esc ends the card.</source>
        <translation>%1: πληκτρολογήστε όνομα ή αριθμό και μετά Enter. Το Esc τερματίζει την κάρτα.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Άκυρο</translation>
    </message>
    <message>
        <source>Ends the card without an answer (Esc)</source>
        <translation>Τερματίζει την κάρτα χωρίς απάντηση (Esc)</translation>
    </message>
    <message>
        <source>Ends the card without an answer and clears the screen (Ctrl+Shift+Delete)</source>
        <translation>Τερματίζει την κάρτα χωρίς απάντηση και καθαρίζει την οθόνη (Ctrl+Shift+Delete)</translation>
    </message>
</context>
<context>
    <name>base</name>
    <message>
        <source>Error in %1</source>
        <translation>Σφάλμα: %1</translation>
    </message>
</context>
<context>
    <name>caption</name>
    <message>
        <source>Invoke</source>
        <translation>Εκτέλεση</translation>
    </message>
    <message>
        <source>Auto five</source>
        <translation>Αυτ. πεντάδα</translation>
    </message>
    <message>
        <source>Auto card</source>
        <translation>Αυτ. κάρτα</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Κλείδωμα</translation>
    </message>
    <message>
        <source>PREVIEW</source>
        <translation>ΠΡΟΕΠΙΣΚΟΠΗΣΗ</translation>
    </message>
    <message>
        <source>TEST SENDER ON</source>
        <translation>ΔΟΚΙΜΑΣΤΙΚΗ ΑΠΟΣΤΟΛΗ</translation>
    </message>
    <message>
        <source>Clear tag</source>
        <translation>Αποεπιλογή</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Επανασύνδεση</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Ιστορικό</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Κλείσιμο</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Αποστολή</translation>
    </message>
    <message>
        <source>Auto score</source>
        <translation>Αυτόματο σκορ</translation>
    </message>
    <message>
        <source>As sent</source>
        <translation>Όπως στάλθηκαν</translation>
    </message>
</context>
<context>
    <name>cards</name>
    <message>
        <source>not sent: main link down</source>
        <translation>δεν στάλθηκε: η κύρια σύνδεση έπεσε</translation>
    </message>
    <message>
        <source>not sent: remote link down</source>
        <translation>δεν στάλθηκε: η απομακρυσμένη σύνδεση έπεσε</translation>
    </message>
    <message>
        <source>Proposal %1</source>
        <translation>Πρόταση %1</translation>
    </message>
    <message>
        <source>Control from outside</source>
        <translation>Έλεγχος από έξω</translation>
    </message>
    <message>
        <source>The console does not listen:</source>
        <translation>Η κονσόλα δεν ακούει:</translation>
    </message>
    <message>
        <source>As-run record</source>
        <translation>Αρχείο μετάδοσης</translation>
    </message>
    <message>
        <source>What is on air cannot be written down: %1</source>
        <translation>Δεν μπορεί να καταγραφεί τι είναι στον αέρα: %1</translation>
    </message>
    <message>
        <source>Something is on air.</source>
        <translation>Κάτι είναι στον αέρα.</translation>
    </message>
    <message>
        <source>General variables are not saved.</source>
        <translation>Οι γενικές μεταβλητές δεν έχουν αποθηκευτεί.</translation>
    </message>
    <message>
        <source>Close the console?</source>
        <translation>Να κλείσει η κονσόλα;</translation>
    </message>
    <message>
        <source>main menu</source>
        <translation>κύριο μενού</translation>
    </message>
    <message>
        <source>There is no demo to copy: %1</source>
        <translation>Δεν υπάρχει επίδειξη για αντιγραφή: %1</translation>
    </message>
    <message>
        <source>The folder %1 could not be made from %2</source>
        <translation>Ο φάκελος %1 δεν μπόρεσε να δημιουργηθεί από το %2</translation>
    </message>
    <message>
        <source>%1: no private key of RSA or EC in PEM, or one with a password</source>
        <translation>%1: δεν έχει ιδιωτικό κλειδί RSA ή EC σε PEM, ή το κλειδί έχει κωδικό</translation>
    </message>
    <message>
        <source>%1: no certificate in PEM</source>
        <translation>%1: δεν έχει πιστοποιητικό σε PEM</translation>
    </message>
    <message>
        <source>%1: not the key of the certificate %2</source>
        <translation>%1: δεν είναι το κλειδί του πιστοποιητικού %2</translation>
    </message>
</context>
<context>
    <name>console</name>
    <message>
        <source>Warning</source>
        <translation>Προειδοποίηση</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Σφάλμα</translation>
    </message>
    <message>
        <source>Do not show this again for this card until cards are reloaded</source>
        <translation>Να μην εμφανιστεί ξανά για αυτή την κάρτα μέχρι να φορτωθούν πάλι οι κάρτες</translation>
    </message>
    <message>
        <source>%1 cards</source>
        <translation>%1 κάρτες</translation>
    </message>
    <message>
        <source>1 message of %1 not shown</source>
        <translation>1 μήνυμα δεν εμφανίστηκε: %1</translation>
    </message>
    <message>
        <source>%1 messages of %2 not shown</source>
        <translation>%1 μηνύματα δεν εμφανίστηκαν: %2</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Εύρεση</translation>
    </message>
    <message>
        <source>Card, key, script, command or variable</source>
        <translation>Κάρτα, πλήκτρο, σενάριο, εντολή ή μεταβλητή</translation>
    </message>
    <message>
        <source>What to find</source>
        <translation>Τι να βρεθεί</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Βρέθηκαν</translation>
    </message>
    <message>
        <source>Enter fires, Shift+Enter fires and asks, Esc leaves</source>
        <translation>Enter: εκτέλεση, Shift+Enter: εκτέλεση με ερωτήσεις, Esc: έξοδος</translation>
    </message>
    <message>
        <source>Opens or closes the sheet of keys</source>
        <translation>Ανοίγει ή κλείνει το φύλλο των πλήκτρων</translation>
    </message>
    <message>
        <source>Finds cards, scripts, commands and variables</source>
        <translation>Βρίσκει κάρτες, σενάρια, εντολές και μεταβλητές</translation>
    </message>
    <message>
        <source>Fills the screen without a frame, or gives it back</source>
        <translation>Γεμίζει την οθόνη χωρίς πλαίσιο ή την αφήνει πάλι</translation>
    </message>
    <message>
        <source>Tab, arrows</source>
        <translation>Tab, βέλη</translation>
    </message>
    <message>
        <source>Lead to the next control; Esc leads back</source>
        <translation>Οδηγούν στο επόμενο στοιχείο· το Esc γυρίζει πίσω</translation>
    </message>
    <message>
        <source>Presses the control with the ring; with Shift: its right button, or L</source>
        <translation>Πατά το στοιχείο με το πλαίσιο· με Shift: το δεξί του κουμπί ή το L</translation>
    </message>
    <message>
        <source>Fire the pack&apos;s cards as F1 … F5 do</source>
        <translation>Εκτελούν κάρτες του πακέτου όπως τα F1 … F5</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Πλήκτρα</translation>
    </message>
    <message>
        <source>Card %1: %2</source>
        <translation>Κάρτα %1: %2</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>κενή</translation>
    </message>
    <message>
        <source>Socket history</source>
        <translation>Ιστορικό σύνδεσης</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Γηπεδούχοι</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Φιλοξενούμενοι</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Διεύθυνση</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Θύρα</translation>
    </message>
    <message>
        <source>Remote server</source>
        <translation>Απομακρυσμένος διακομιστής</translation>
    </message>
    <message>
        <source>Command line</source>
        <translation>Γραμμή εντολής</translation>
    </message>
    <message>
        <source>This pack hides the controls. Links can be connected here.</source>
        <translation>Αυτό το πακέτο κρύβει τα χειριστήρια. Οι συνδέσεις γίνονται εδώ.</translation>
    </message>
    <message>
        <source>Main server</source>
        <translation>Κύριος διακομιστής</translation>
    </message>
    <message>
        <source>%1, on</source>
        <translation>%1, ενεργό</translation>
    </message>
    <message>
        <source>%1, off</source>
        <translation>%1, ανενεργό</translation>
    </message>
    <message>
        <source>Locked: does not follow the cards</source>
        <translation>Κλειδωμένο: δεν ακολουθεί τις κάρτες</translation>
    </message>
    <message>
        <source>Nothing on air</source>
        <translation>Τίποτα στον αέρα</translation>
    </message>
    <message>
        <source>MANUAL</source>
        <translation>ΧΕΙΡΟΚΙΝΗΤΟ</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Περίοδος</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Αγώνας</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>Εμφάνιση</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Απόκρυψη</translation>
    </message>
    <message>
        <source>Roll speed</source>
        <translation>Ταχύτητα κύλισης</translation>
    </message>
    <message>
        <source>Wipe</source>
        <translation>Σάρωση</translation>
    </message>
    <message>
        <source>Extra time for cards</source>
        <translation>Παράταση για κάρτες</translation>
    </message>
    <message>
        <source>Test sender</source>
        <translation>Δοκιμαστική αποστολή</translation>
    </message>
    <message>
        <source>%1 pressed %2 s ago: not fired</source>
        <translation>%1: πατήθηκε πριν από %2 s, δεν εκτελέστηκε</translation>
    </message>
    <message>
        <source>Card %1</source>
        <translation>Κάρτα %1</translation>
    </message>
    <message>
        <source>%1: no card in this place</source>
        <translation>%1: δεν υπάρχει κάρτα εδώ</translation>
    </message>
    <message>
        <source>%1: other cards were loaded, not fired</source>
        <translation>%1: φορτώθηκαν άλλες κάρτες, δεν εκτελέστηκε</translation>
    </message>
    <message>
        <source>%1: fired from %2</source>
        <translation>%1: εκτελέστηκε από %2</translation>
    </message>
    <message>
        <source>script</source>
        <translation>σενάριο</translation>
    </message>
    <message>
        <source>There is no folder MODULES in</source>
        <translation>Δεν υπάρχει φάκελος MODULES στο</translation>
    </message>
    <message>
        <source>Start with --app-folder FOLDER, the folder that holds it, or with --user-folder.</source>
        <translation>Ξεκινήστε με --app-folder ΦΑΚΕΛΟΣ, τον φάκελο που τον περιέχει, ή με --user-folder.</translation>
    </message>
    <message>
        <source>&amp;Dark theme</source>
        <translation>&amp;Σκούρο θέμα</translation>
    </message>
    <message>
        <source>&amp;Light theme</source>
        <translation>&amp;Ανοιχτό θέμα</translation>
    </message>
    <message>
        <source>&amp;High-contrast theme</source>
        <translation>Θέμα &amp;υψηλής αντίθεσης</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Θέμα</translation>
    </message>
    <message>
        <source>clear</source>
        <translation>καθαρό</translation>
    </message>
    <message>
        <source>on air</source>
        <translation>στον αέρα</translation>
    </message>
    <message>
        <source>open</source>
        <translation>ανοιχτή</translation>
    </message>
    <message>
        <source>used</source>
        <translation>χρησιμοποιημένη</translation>
    </message>
    <message>
        <source>used earlier</source>
        <translation>χρησιμοποιημένη νωρίτερα</translation>
    </message>
    <message>
        <source>tagged</source>
        <translation>επιλεγμένος</translation>
    </message>
    <message>
        <source>tagged as the other</source>
        <translation>επιλεγμένος ως ο άλλος</translation>
    </message>
</context>
<context>
    <name>data</name>
    <message>
        <source>database none</source>
        <translation>βάση: καμία</translation>
    </message>
    <message>
        <source>database %1 connected, Greek %2</source>
        <translation>βάση %1: συνδεδεμένη, ελληνικά: %2</translation>
    </message>
    <message>
        <source>database %1 %2</source>
        <translation>βάση %1: %2</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>συνδεδεμένη</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>απέτυχε</translation>
    </message>
    <message>
        <source>trying</source>
        <translation>προσπάθεια…</translation>
    </message>
    <message>
        <source>lost at %1</source>
        <translation>χάθηκε στις %1</translation>
    </message>
    <message>
        <source>lost at %1, trying</source>
        <translation>χάθηκε στις %1, προσπάθεια…</translation>
    </message>
</context>
<context>
    <name>engine</name>
    <message>
        <source>%1 found nothing</source>
        <translation>%1: δεν βρήκε τίποτα</translation>
    </message>
    <message>
        <source>PACKS.TXT offers no pack &quot;%1&quot;.</source>
        <translation>Το PACKS.TXT δεν προσφέρει πακέτο «%1».</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>απέτυχε</translation>
    </message>
    <message>
        <source>no such card</source>
        <translation>δεν υπάρχει τέτοια κάρτα</translation>
    </message>
    <message>
        <source>no data</source>
        <translation>δεν υπάρχουν δεδομένα</translation>
    </message>
    <message>
        <source>%1 holds no line of a card table.</source>
        <translation>Το %1 δεν περιέχει καμία γραμμή πίνακα καρτών.</translation>
    </message>
</context>
<context>
    <name>feed</name>
    <message>
        <source>port in use</source>
        <translation>η θύρα χρησιμοποιείται</translation>
    </message>
    <message>
        <source>Bound to port %1</source>
        <translation>Ακούει στη θύρα %1</translation>
    </message>
    <message>
        <source>Not bound: %1</source>
        <translation>Δεν ακούει: %1</translation>
    </message>
    <message>
        <source>off</source>
        <translation>κλειστή</translation>
    </message>
    <message>
        <source>not bound: %1</source>
        <translation>δεν ακούει: %1</translation>
    </message>
    <message>
        <source>bound, nothing heard</source>
        <translation>ακούει, δεν ήρθε τίποτα</translation>
    </message>
    <message>
        <source>silent since %1</source>
        <translation>σιωπή από τις %1</translation>
    </message>
    <message>
        <source>not understood, %1 refused</source>
        <translation>ακατανόητη, απορρίφθηκαν %1</translation>
    </message>
    <message>
        <source>, %1 waiting</source>
        <translation>, σε αναμονή %1</translation>
    </message>
    <message>
        <source>, %1 refused</source>
        <translation>, απορρίφθηκαν %1</translation>
    </message>
    <message>
        <source>held by a card</source>
        <translation>την κρατά μια κάρτα</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>σε παύση</translation>
    </message>
    <message>
        <source>without a clock</source>
        <translation>χωρίς χρόνο</translation>
    </message>
    <message>
        <source>feed %1</source>
        <translation>ροή: %1</translation>
    </message>
    <message>
        <source>Not bound</source>
        <translation>Δεν ακούει</translation>
    </message>
    <message>
        <source>last datagram %1 from %2</source>
        <translation>τελευταίο πακέτο στις %1 από %2</translation>
    </message>
    <message>
        <source>nothing heard</source>
        <translation>δεν ήρθε τίποτα</translation>
    </message>
    <message>
        <source>%1 handled, %2 refused</source>
        <translation>διαβάστηκαν %1, απορρίφθηκαν %2</translation>
    </message>
    <message>
        <source>not a number</source>
        <translation>δεν είναι αριθμός</translation>
    </message>
    <message>
        <source>not a time</source>
        <translation>δεν είναι ώρα</translation>
    </message>
    <message>
        <source>%1 cards</source>
        <translation>%1 κάρτες</translation>
    </message>
    <message>
        <source>%1 rests until %2: no answer from the database in time</source>
        <translation>%1: σε παύση ως τις %2, η βάση δεν απάντησε εγκαίρως</translation>
    </message>
</context>
<context>
    <name>form</name>
    <message>
        <source>Card button %1: fires the card</source>
        <translation>Κουμπί κάρτας %1: εκτελεί την κάρτα</translation>
    </message>
    <message>
        <source>Fires card %1 and asks, whatever player is tagged</source>
        <translation>Εκτελεί την κάρτα %1 και ρωτά, όποιος παίκτης κι αν είναι επιλεγμένος</translation>
    </message>
    <message>
        <source>Shows card set %1</source>
        <translation>Δείχνει την ομάδα καρτών %1</translation>
    </message>
    <message>
        <source>Clears the screen</source>
        <translation>Καθαρίζει την οθόνη</translation>
    </message>
    <message>
        <source>What is on air</source>
        <translation>Τι είναι στον αέρα</translation>
    </message>
    <message>
        <source>On-air lamp: green clear, red on air</source>
        <translation>Λυχνία εκπομπής: πράσινη καθαρά, κόκκινη στον αέρα</translation>
    </message>
    <message>
        <source>The card on air</source>
        <translation>Η κάρτα στον αέρα</translation>
    </message>
    <message>
        <source>The card whose line was refused or not sent, and why</source>
        <translation>Η κάρτα της οποίας γραμμή απορρίφθηκε ή δεν στάλθηκε, και γιατί</translation>
    </message>
    <message>
        <source>Lock: cards no longer change the on-air line</source>
        <translation>Κλείδωμα: οι κάρτες δεν αλλάζουν πια τη γραμμή εκπομπής</translation>
    </message>
    <message>
        <source>This is the preview instance</source>
        <translation>Αυτή είναι η κονσόλα προεπισκόπησης</translation>
    </message>
    <message>
        <source>The test sender loads the main graphics server: STOP is on the Clocks tab</source>
        <translation>Η δοκιμαστική αποστολή φορτώνει τον κύριο διακομιστή γραφικών: το STOP είναι στην καρτέλα Clocks</translation>
    </message>
    <message>
        <source>Function key %1</source>
        <translation>Πλήκτρο λειτουργίας %1</translation>
    </message>
    <message>
        <source>What function key %1 fires</source>
        <translation>Τι εκτελεί το πλήκτρο λειτουργίας %1</translation>
    </message>
    <message>
        <source>Shows this panel</source>
        <translation>Δείχνει αυτή την καρτέλα</translation>
    </message>
    <message>
        <source>Scores</source>
        <translation>Σκορ</translation>
    </message>
    <message>
        <source>Starting fives</source>
        <translation>Αρχικές πεντάδες</translation>
    </message>
    <message>
        <source>Effect speeds</source>
        <translation>Ταχύτητες εφέ</translation>
    </message>
    <message>
        <source>Remote graphics server</source>
        <translation>Απομακρυσμένος διακομιστής γραφικών</translation>
    </message>
    <message>
        <source>Main graphics server</source>
        <translation>Κύριος διακομιστής γραφικών</translation>
    </message>
    <message>
        <source>Starting elevens</source>
        <translation>Αρχικές ενδεκάδες</translation>
    </message>
    <message>
        <source>Clocks</source>
        <translation>Ρολόγια</translation>
    </message>
    <message>
        <source>Socket history</source>
        <translation>Ιστορικό σύνδεσης</translation>
    </message>
    <message>
        <source>This pack hides the controls</source>
        <translation>Αυτό το πακέτο κρύβει τα χειριστήρια</translation>
    </message>
    <message>
        <source>Runs the pack&apos;s invoke card</source>
        <translation>Εκτελεί την κάρτα invoke του πακέτου</translation>
    </message>
    <message>
        <source>Runs the pack&apos;s automatic starting five</source>
        <translation>Εκτελεί την αυτόματη αρχική πεντάδα του πακέτου</translation>
    </message>
    <message>
        <source>Runs the card that the last cards have named, for the entry picked last</source>
        <translation>Εκτελεί την κάρτα που όρισαν οι τελευταίες κάρτες, για την τελευταία επιλογή</translation>
    </message>
    <message>
        <source>Clears the tagged player</source>
        <translation>Καταργεί την επιλογή παίκτη</translation>
    </message>
    <message>
        <source>Opens the main menu</source>
        <translation>Ανοίγει το κύριο μενού</translation>
    </message>
    <message>
        <source>Address of the main graphics server; Enter connects</source>
        <translation>Διεύθυνση του κύριου διακομιστή γραφικών· το Enter συνδέει</translation>
    </message>
    <message>
        <source>Port of the main graphics server; Enter connects</source>
        <translation>Θύρα του κύριου διακομιστή γραφικών· το Enter συνδέει</translation>
    </message>
    <message>
        <source>Connects or disconnects the main graphics server</source>
        <translation>Συνδέει ή αποσυνδέει τον κύριο διακομιστή γραφικών</translation>
    </message>
    <message>
        <source>Tries a lost main link again every 2 seconds</source>
        <translation>Δοκιμάζει τη χαμένη κύρια σύνδεση κάθε 2 δευτερόλεπτα</translation>
    </message>
    <message>
        <source>Address of the remote graphics server; Enter connects</source>
        <translation>Διεύθυνση του απομακρυσμένου διακομιστή γραφικών· το Enter συνδέει</translation>
    </message>
    <message>
        <source>Port of the remote graphics server; Enter connects</source>
        <translation>Θύρα του απομακρυσμένου διακομιστή γραφικών· το Enter συνδέει</translation>
    </message>
    <message>
        <source>Connects or disconnects the remote graphics server</source>
        <translation>Συνδέει ή αποσυνδέει τον απομακρυσμένο διακομιστή γραφικών</translation>
    </message>
    <message>
        <source>Tries a lost remote link again every 2 seconds</source>
        <translation>Δοκιμάζει τη χαμένη απομακρυσμένη σύνδεση κάθε 2 δευτερόλεπτα</translation>
    </message>
    <message>
        <source>Main graphics link</source>
        <translation>Κύρια σύνδεση γραφικών</translation>
    </message>
    <message>
        <source>Remote graphics link</source>
        <translation>Απομακρυσμένη σύνδεση γραφικών</translation>
    </message>
    <message>
        <source>Game feed</source>
        <translation>Ροή αγώνα</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Βάση δεδομένων</translation>
    </message>
    <message>
        <source>Messages of cards that were not shown</source>
        <translation>Μηνύματα καρτών που δεν εμφανίστηκαν</translation>
    </message>
    <message>
        <source>A card that runs by itself and is left out for a while</source>
        <translation>Κάρτα που εκτελείται μόνη της και παραλείπεται για λίγο</translation>
    </message>
    <message>
        <source>What happened to the last press</source>
        <translation>Τι έγινε με το τελευταίο πάτημα</translation>
    </message>
    <message>
        <source>A remote server&apos;s preset address</source>
        <translation>Έτοιμη διεύθυνση απομακρυσμένου διακομιστή</translation>
    </message>
    <message>
        <source>Shows the socket history</source>
        <translation>Δείχνει το ιστορικό σύνδεσης</translation>
    </message>
    <message>
        <source>Hides the socket history</source>
        <translation>Κρύβει το ιστορικό σύνδεσης</translation>
    </message>
    <message>
        <source>Changes between the history and the last template data</source>
        <translation>Εναλλάσσει το ιστορικό με τα τελευταία δεδομένα προτύπου</translation>
    </message>
    <message>
        <source>The last template data</source>
        <translation>Τα τελευταία δεδομένα προτύπου</translation>
    </message>
    <message>
        <source>A command line for the main server; Enter sends, Up recalls earlier ones</source>
        <translation>Γραμμή εντολής του κύριου διακομιστή· Enter: αποστολή, πάνω βέλος: παλαιότερες</translation>
    </message>
    <message>
        <source>Sends the command line</source>
        <translation>Στέλνει τη γραμμή εντολής</translation>
    </message>
    <message>
        <source>Writes everything sent to CASPAROUT.TXT</source>
        <translation>Γράφει ό,τι στέλνεται στο CASPAROUT.TXT</translation>
    </message>
    <message>
        <source>Whether CASPAROUT.TXT is written</source>
        <translation>Αν γράφεται το CASPAROUT.TXT</translation>
    </message>
    <message>
        <source>Lines sent and received, oldest on top; a click copies the line</source>
        <translation>Γραμμές που στάλθηκαν και ήρθαν, η παλαιότερη πάνω· ένα κλικ αντιγράφει τη γραμμή</translation>
    </message>
    <message>
        <source>Replies of the main server, newest on top</source>
        <translation>Απαντήσεις του κύριου διακομιστή, η νεότερη πάνω</translation>
    </message>
    <message>
        <source>Clock values past the threshold count as extra time</source>
        <translation>Χρόνοι μετά το όριο μετρούν ως παράταση</translation>
    </message>
    <message>
        <source>Threshold of the extra time, the clock&apos;s digits without the colon</source>
        <translation>Όριο της παράτασης, τα ψηφία του χρόνου χωρίς την άνω και κάτω τελεία</translation>
    </message>
    <message>
        <source>Where the game feed is heard, when it was last, and how many datagrams came</source>
        <translation>Πού ακούγεται η ροή αγώνα, πότε ήρθε τελευταία φορά και πόσα πακέτα ήρθαν</translation>
    </message>
    <message>
        <source>Game time</source>
        <translation>Χρόνος αγώνα</translation>
    </message>
    <message>
        <source>Extra time</source>
        <translation>Παράταση</translation>
    </message>
    <message>
        <source>Local clock</source>
        <translation>Τοπικό ρολόι</translation>
    </message>
    <message>
        <source>What the local clock shows</source>
        <translation>Τι δείχνει το τοπικό ρολόι</translation>
    </message>
    <message>
        <source>Starts or stops the local clock</source>
        <translation>Ξεκινά ή σταματά το τοπικό ρολόι</translation>
    </message>
    <message>
        <source>Starts or stops the test sender</source>
        <translation>Ξεκινά ή σταματά τη δοκιμαστική αποστολή</translation>
    </message>
    <message>
        <source>Home score in use</source>
        <translation>Σκορ γηπεδούχων που ισχύει</translation>
    </message>
    <message>
        <source>Home score as it comes in</source>
        <translation>Σκορ γηπεδούχων όπως έρχεται</translation>
    </message>
    <message>
        <source>Manual home score</source>
        <translation>Χειροκίνητο σκορ γηπεδούχων</translation>
    </message>
    <message>
        <source>Away score in use</source>
        <translation>Σκορ φιλοξενουμένων που ισχύει</translation>
    </message>
    <message>
        <source>Away score as it comes in</source>
        <translation>Σκορ φιλοξενουμένων όπως έρχεται</translation>
    </message>
    <message>
        <source>Manual away score</source>
        <translation>Χειροκίνητο σκορ φιλοξενουμένων</translation>
    </message>
    <message>
        <source>Steps the manual home score up|Steps the manual home score down|Steps the manual away score up|Steps the manual away score down</source>
        <translation>Ανεβάζει το χειροκίνητο σκορ γηπεδούχων|Κατεβάζει το χειροκίνητο σκορ γηπεδούχων|Ανεβάζει το χειροκίνητο σκορ φιλοξενουμένων|Κατεβάζει το χειροκίνητο σκορ φιλοξενουμένων</translation>
    </message>
    <message>
        <source>Uses the manual score instead of the one that comes in</source>
        <translation>Χρησιμοποιεί το χειροκίνητο σκορ αντί για αυτό που έρχεται</translation>
    </message>
    <message>
        <source>Scores as they come in: red while the manual score is used</source>
        <translation>Τα σκορ όπως έρχονται: κόκκινα όσο ισχύει το χειροκίνητο</translation>
    </message>
    <message>
        <source>Blinks while the score comes in by itself</source>
        <translation>Αναβοσβήνει όσο το σκορ έρχεται αυτόματα</translation>
    </message>
    <message>
        <source>Extra time as cards show it</source>
        <translation>Η παράταση όπως τη δείχνουν οι κάρτες</translation>
    </message>
    <message>
        <source>Screen mode: green is on</source>
        <translation>Μορφή οθόνης: ισχύει η πράσινη</translation>
    </message>
    <message>
        <source>Screen mode 16:9</source>
        <translation>Μορφή οθόνης 16:9</translation>
    </message>
    <message>
        <source>Screen mode 4:3</source>
        <translation>Μορφή οθόνης 4:3</translation>
    </message>
    <message>
        <source>Card language: choosing it loads that pack&apos;s cards</source>
        <translation>Γλώσσα καρτών: η επιλογή φορτώνει τις κάρτες του πακέτου της</translation>
    </message>
    <message>
        <source>Fade in: 1 to 100, Off or Fast|Fade out: 1 to 100, Off or Fast|Roll speed: 1 to 100, Off or Fast|Wipe: 1 to 100, Off or Fast</source>
        <translation>Εμφάνιση: 1 ως 100, Off ή Fast|Απόκρυψη: 1 ως 100, Off ή Fast|Ταχύτητα κύλισης: 1 ως 100, Off ή Fast|Σάρωση: 1 ως 100, Off ή Fast</translation>
    </message>
    <message>
        <source>Period of the game</source>
        <translation>Περίοδος του αγώνα</translation>
    </message>
    <message>
        <source>Away starting five, player %1</source>
        <translation>Αρχική πεντάδα φιλοξενουμένων, παίκτης %1</translation>
    </message>
    <message>
        <source>Away starting eleven, player %1</source>
        <translation>Αρχική ενδεκάδα φιλοξενουμένων, παίκτης %1</translation>
    </message>
    <message>
        <source>Away player %1: left button tags, right button tags as the other</source>
        <translation>Φιλοξενούμενος %1: αριστερό κουμπί τον επιλέγει, δεξί ως δεύτερο</translation>
    </message>
    <message>
        <source>Away team</source>
        <translation>Ομάδα φιλοξενουμένων</translation>
    </message>
    <message>
        <source>Home starting five, player %1</source>
        <translation>Αρχική πεντάδα γηπεδούχων, παίκτης %1</translation>
    </message>
    <message>
        <source>Home starting eleven, player %1</source>
        <translation>Αρχική ενδεκάδα γηπεδούχων, παίκτης %1</translation>
    </message>
    <message>
        <source>Home player %1: left button tags, right button tags as the other</source>
        <translation>Γηπεδούχος %1: αριστερό κουμπί τον επιλέγει, δεξί ως δεύτερο</translation>
    </message>
    <message>
        <source>Home team</source>
        <translation>Ομάδα γηπεδούχων</translation>
    </message>
    <message>
        <source>Proposal %1: a click takes it</source>
        <translation>Πρόταση %1: ένα κλικ τη δέχεται</translation>
    </message>
    <message>
        <source>Shows the template data as it was sent</source>
        <translation>Δείχνει τα δεδομένα του προτύπου όπως στάλθηκαν</translation>
    </message>
</context>
<context>
    <name>general</name>
    <message>
        <source>Search</source>
        <translation>Αναζήτηση</translation>
    </message>
    <message>
        <source>Shows the rows that hold this text</source>
        <translation>Δείχνει τις γραμμές που περιέχουν αυτό το κείμενο</translation>
    </message>
    <message>
        <source>changed, not saved, not applied</source>
        <translation>άλλαξε, μη αποθηκευμένη, μη ενεργή</translation>
    </message>
    <message>
        <source>Enter edits the value, Alt+Down opens its list or picker</source>
        <translation>Το Enter αλλάζει την τιμή, το Alt+κάτω βέλος ανοίγει τη λίστα ή την επιλογή αρχείου</translation>
    </message>
    <message>
        <source>A&amp;dd row</source>
        <translation>&amp;Νέα γραμμή</translation>
    </message>
    <message>
        <source>Asks for name, title and help of a new variable</source>
        <translation>Ρωτά όνομα, τίτλο και βοήθεια μιας νέας μεταβλητής</translation>
    </message>
    <message>
        <source>&amp;Remove row</source>
        <translation>&amp;Διαγραφή γραμμής</translation>
    </message>
    <message>
        <source>Takes the chosen rows away; Save makes it last</source>
        <translation>Αφαιρεί τις επιλεγμένες γραμμές· η Αποθήκευση το οριστικοποιεί</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>Ε&amp;ισαγωγή</translation>
    </message>
    <message>
        <source>Adds the lines of infodata.txt and saves</source>
        <translation>Προσθέτει τις γραμμές του infodata.txt και αποθηκεύει</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>Απο&amp;θήκευση</translation>
    </message>
    <message>
        <source>Saves all rows to infodata.dat</source>
        <translation>Αποθηκεύει όλες τις γραμμές στο infodata.dat</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Εφαρμογή</translation>
    </message>
    <message>
        <source>Gives the cards all values</source>
        <translation>Δίνει όλες τις τιμές στις κάρτες</translation>
    </message>
    <message>
        <source>1 row removed but not saved</source>
        <translation>1 γραμμή διαγράφηκε χωρίς αποθήκευση</translation>
    </message>
    <message>
        <source>%1 rows removed but not saved</source>
        <translation>%1 γραμμές διαγράφηκαν χωρίς αποθήκευση</translation>
    </message>
    <message>
        <source>1 row not saved</source>
        <translation>1 γραμμή μη αποθηκευμένη</translation>
    </message>
    <message>
        <source>%1 rows not saved</source>
        <translation>%1 γραμμές μη αποθηκευμένες</translation>
    </message>
    <message>
        <source>1 row not applied</source>
        <translation>1 γραμμή μη ενεργή</translation>
    </message>
    <message>
        <source>%1 rows not applied</source>
        <translation>%1 γραμμές μη ενεργές</translation>
    </message>
    <message>
        <source>There are changes that are not saved. Close without them?</source>
        <translation>Υπάρχουν αλλαγές που δεν έχουν αποθηκευτεί. Να κλείσει χωρίς αυτές;</translation>
    </message>
    <message>
        <source>Shows the lines that hold this text</source>
        <translation>Δείχνει τις γραμμές που περιέχουν αυτό το κείμενο</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Αντιγραφή</translation>
    </message>
    <message>
        <source>Copies the lines shown</source>
        <translation>Αντιγράφει τις γραμμές που φαίνονται</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Κλείσιμο</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Τιμή</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Τίτλος</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Μεταβλητή</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Βοήθεια</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>άλλαξε</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>μη αποθηκευμένη</translation>
    </message>
    <message>
        <source>not applied</source>
        <translation>μη ενεργή</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not taken: a choice is written VALUE:CHOICE|CHOICE, as in ON:ON|OFF.</source>
        <translation>Το «%1» δεν γίνεται δεκτό: μια επιλογή γράφεται ΤΙΜΗ:ΕΠΙΛΟΓΗ|ΕΠΙΛΟΓΗ, όπως ON:ON|OFF.</translation>
    </message>
    <message>
        <source>infodata.dat is damaged in line %1 (%2).</source>
        <translation>Το infodata.dat είναι κατεστραμμένο στη γραμμή %1 (%2).</translation>
    </message>
    <message>
        <source>Rows before it: %1.</source>
        <translation>Γραμμές πριν από αυτήν: %1.</translation>
    </message>
    <message>
        <source>The damaged file is kept as infodata.dat.bad.</source>
        <translation>Το κατεστραμμένο αρχείο φυλάσσεται ως infodata.dat.bad.</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 γραμμές</translation>
    </message>
    <message>
        <source>Remove %1?</source>
        <translation>Να διαγραφεί: %1;</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>γραμμή %1: %2</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>και άλλες %1</translation>
    </message>
    <message>
        <source>not UTF-8</source>
        <translation>όχι UTF-8</translation>
    </message>
    <message>
        <source>%1 fields instead of 4</source>
        <translation>%1 πεδία αντί για 4</translation>
    </message>
    <message>
        <source>unknown escape in field %1</source>
        <translation>άγνωστη ακολουθία διαφυγής στο πεδίο %1</translation>
    </message>
    <message>
        <source>no version line known here</source>
        <translation>χωρίς γνωστή γραμμή έκδοσης</translation>
    </message>
    <message>
        <source>cut off</source>
        <translation>κομμένο</translation>
    </message>
    <message>
        <source>%1 fields, filled with empty ones</source>
        <translation>%1 πεδία, συμπληρώθηκαν με κενά</translation>
    </message>
    <message>
        <source>%1 fields, those after the fourth left out</source>
        <translation>%1 πεδία, όσα είναι μετά το τέταρτο παραλείφθηκαν</translation>
    </message>
    <message>
        <source>There are changes that are not saved. Change the language without them?</source>
        <translation>Υπάρχουν αλλαγές που δεν έχουν αποθηκευτεί. Να αλλάξει η γλώσσα χωρίς αυτές;</translation>
    </message>
    <message>
        <source>choices without a value and &quot;:&quot; before them</source>
        <translation>επιλογές χωρίς τιμή και «:» πριν από αυτές</translation>
    </message>
    <message>
        <source>a choice holds &quot;:&quot;, the value is cut there</source>
        <translation>μια επιλογή περιέχει «:», η τιμή κόβεται εκεί</translation>
    </message>
    <message>
        <source>no name</source>
        <translation>χωρίς όνομα</translation>
    </message>
    <message>
        <source>no &quot;@&quot; before the name</source>
        <translation>χωρίς «@» πριν από το όνομα</translation>
    </message>
    <message>
        <source>the name of row %1</source>
        <translation>το όνομα της γραμμής %1</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Εμφάνιση όλων</translation>
    </message>
    <message>
        <source>infodata.dat has changed since it was read. Overwrite it?</source>
        <translation>Το infodata.dat άλλαξε από τότε που διαβάστηκε. Να αντικατασταθεί;</translation>
    </message>
</context>
<context>
    <name>link</name>
    <message>
        <source>timed out</source>
        <translation>έληξε ο χρόνος</translation>
    </message>
    <message>
        <source>port &quot;%1&quot; is not a number from 1 to 65535</source>
        <translation>η θύρα «%1» δεν είναι αριθμός από 1 ως 65535</translation>
    </message>
    <message>
        <source>no address</source>
        <translation>χωρίς διεύθυνση</translation>
    </message>
    <message>
        <source>the server does not read</source>
        <translation>ο διακομιστής δεν διαβάζει</translation>
    </message>
    <message>
        <source>the server closed</source>
        <translation>ο διακομιστής έκλεισε</translation>
    </message>
    <message>
        <source>writing</source>
        <translation>γράφεται</translation>
    </message>
    <message>
        <source>cannot be written</source>
        <translation>δεν μπορεί να γραφτεί</translation>
    </message>
    <message>
        <source>main %1</source>
        <translation>κύρια %1</translation>
    </message>
    <message>
        <source>remote %1</source>
        <translation>απομακρ. %1</translation>
    </message>
    <message>
        <source>not a number from 1 to 65535</source>
        <translation>δεν είναι αριθμός από 1 ως 65535</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>καμία απάντηση</translation>
    </message>
    <message>
        <source>, 1 line lost</source>
        <translation>, χάθηκε 1 γραμμή</translation>
    </message>
    <message>
        <source>, %1 lines lost</source>
        <translation>, χάθηκαν %1 γραμμές</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>εκτός σύνδεσης</translation>
    </message>
    <message>
        <source>, trying again</source>
        <translation>, νέα προσπάθεια</translation>
    </message>
    <message>
        <source>lost at %1: %2</source>
        <translation>χάθηκε στις %1: %2</translation>
    </message>
    <message>
        <source>not connected (%1)</source>
        <translation>εκτός σύνδεσης (%1)</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>συνδέεται…</translation>
    </message>
    <message>
        <source>connected, no answer for %1 s</source>
        <translation>συνδεδεμένη, χωρίς απάντηση για %1 s</translation>
    </message>
    <message>
        <source>connected, %1</source>
        <translation>συνδεδεμένη, %1</translation>
    </message>
    <message>
        <source>connected, answers again</source>
        <translation>συνδεδεμένη, απαντά πάλι</translation>
    </message>
    <message>
        <source>connected again at %1: what is on air must be fired again</source>
        <translation>συνδέθηκε πάλι στις %1: ό,τι είναι στον αέρα πρέπει να εκτελεστεί ξανά</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>συνδεδεμένη</translation>
    </message>
</context>
<context>
    <name>page</name>
    <message>
        <source>en</source>
        <translation>el</translation>
    </message>
    <message>
        <source>Cards</source>
        <translation>Κάρτες</translation>
    </message>
    <message>
        <source>Sets of cards</source>
        <translation>Ομάδες καρτών</translation>
    </message>
    <message>
        <source>Function keys</source>
        <translation>Πλήκτρα λειτουργιών</translation>
    </message>
    <message>
        <source>Score and clock</source>
        <translation>Σκορ και χρόνος</translation>
    </message>
    <message>
        <source>Game clock</source>
        <translation>Χρόνος αγώνα</translation>
    </message>
    <message>
        <source>Manual score</source>
        <translation>Χειροκίνητο σκορ</translation>
    </message>
    <message>
        <source>Proposals</source>
        <translation>Προτάσεις</translation>
    </message>
    <message>
        <source>Starting fives</source>
        <translation>Αρχικές πεντάδες</translation>
    </message>
    <message>
        <source>Choose a place, then the player.</source>
        <translation>Επιλέξτε θέση και μετά τον παίκτη.</translation>
    </message>
    <message>
        <source>token</source>
        <translation>κωδικός</translation>
    </message>
    <message>
        <source>The token of this console</source>
        <translation>Ο κωδικός αυτής της κονσόλας</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Είσοδος</translation>
    </message>
    <message>
        <source>no data</source>
        <translation>δεν υπάρχουν δεδομένα</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>απέτυχε</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Γηπεδούχοι</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Φιλοξενούμενοι</translation>
    </message>
    <message>
        <source>The console does not answer</source>
        <translation>Η κονσόλα δεν απαντά</translation>
    </message>
    <message>
        <source>fired last</source>
        <translation>η τελευταία</translation>
    </message>
    <message>
        <source>Set %1</source>
        <translation>Ομάδα %1</translation>
    </message>
    <message>
        <source>Period %1</source>
        <translation>Περίοδος %1</translation>
    </message>
    <message>
        <source>manual %1</source>
        <translation>χειροκίνητο %1</translation>
    </message>
    <message>
        <source>%1 one less</source>
        <translation>%1 ένα λιγότερο</translation>
    </message>
    <message>
        <source>%1 one more</source>
        <translation>%1 ένα περισσότερο</translation>
    </message>
    <message>
        <source>%1, place %2: %3</source>
        <translation>%1, θέση %2: %3</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ναι</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Όχι</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Άκυρο</translation>
    </message>
    <message>
        <source>clear</source>
        <translation>καθαρό</translation>
    </message>
    <message>
        <source>used</source>
        <translation>χρησιμοποιημένη</translation>
    </message>
    <message>
        <source>The connection to the console is lost; trying again</source>
        <translation>Η σύνδεση με την κονσόλα χάθηκε· γίνεται νέα προσπάθεια</translation>
    </message>
</context>
</TS>

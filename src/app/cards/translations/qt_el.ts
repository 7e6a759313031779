<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Words of Qt itself that the console shows; Qt has none in Greek. -->
<TS version="2.1" language="el" sourcelanguage="en">
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Εντάξει</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ναι</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>Ό&amp;χι</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Άκυρο</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Κλείσιμο</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Άνοιγμα</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Αποθήκευση</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Εφαρμογή</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Απόρριψη</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Βοήθεια</translation>
    </message>
</context>
<context>
    <name>QDialogButtonBox</name>
    <message>
        <source>OK</source>
        <translation>Εντάξει</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>Αναί&amp;ρεση</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Ακύρωση α&amp;ναίρεσης</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Απο&amp;κοπή</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Αντιγραφή</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Επικόλληση</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Διαγραφή</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Επιλογή όλων</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Undo</source>
        <translation>Αναί&amp;ρεση</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Ακύρωση α&amp;ναίρεσης</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Απο&amp;κοπή</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Αντιγραφή</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Επικόλληση</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Διαγραφή</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Επιλογή όλων</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Top</source>
        <translation>Αρχή</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Τέλος</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Αριστερό άκρο</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Δεξί άκρο</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Σελίδα πάνω</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Σελίδα κάτω</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Σελίδα αριστερά</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Σελίδα δεξιά</translation>
    </message>
    <message>
        <source>Scroll here</source>
        <translation>Κύλιση εδώ</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Κύλιση πάνω</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Κύλιση κάτω</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Κύλιση αριστερά</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Κύλιση δεξιά</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Back</source>
        <translation>Πίσω</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Μπροστά</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Πίσω</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Μπροστά</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Πάνω φάκελος</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Στον πάνω φάκελο</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Νέος φάκελος</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Νέος φάκελος</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Νέος φάκελος</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Νέος φάκελος</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Λίστα</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Λεπτομέρειες</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Προβολή ως λίστα</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Προβολή με λεπτομέρειες</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Πλευρική στήλη</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Θέσεις και σελιδοδείκτες</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Αρχεία</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>Θέση:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>Ό&amp;νομα αρχείου:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Τύπος αρχείων:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Φάκελος:</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Φάκελοι</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Άν&amp;οιγμα</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Άνοιγμα</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Επιλογή</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>Απο&amp;θήκευση</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Μετονομασία</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Διαγραφή</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Διαγραφή</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Αφαίρεση</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>&amp;Κρυφά αρχεία</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Εμφάνιση </translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Πρόσφατες θέσεις</translation>
    </message>
    <message>
        <source>Find Directory</source>
        <translation>Εύρεση φακέλου</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Όλα τα αρχεία (*)</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Ο φάκελος δεν βρέθηκε.
Ελέγξτε ότι το όνομα του φακέλου είναι σωστό.</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Το αρχείο δεν βρέθηκε.
Ελέγξτε ότι το όνομα του αρχείου είναι σωστό.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete '%1'?</source>
        <translation>Θέλετε σίγουρα να διαγραφεί το «%1»;</translation>
    </message>
    <message>
        <source>'%1' is write protected.
Do you want to delete it anyway?</source>
        <translation>Το «%1» είναι προστατευμένο.
Να διαγραφεί παρόλα αυτά;</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Ο φάκελος δεν μπόρεσε να διαγραφεί.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Όνομα</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Μέγεθος</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Τύπος</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Είδος</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Τροποποίηση</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Υπολογιστής</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Ο υπολογιστής μου</translation>
    </message>
</context>
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Host not found</source>
        <translation>ο υπολογιστής δεν βρέθηκε</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>η σύνδεση δεν έγινε δεκτή</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>η σύνδεση έληξε</translation>
    </message>
    <message>
        <source>Socket operation timed out</source>
        <translation>έληξε ο χρόνος</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>το δίκτυο δεν είναι προσβάσιμο</translation>
    </message>
    <message>
        <source>Socket is not connected</source>
        <translation>χωρίς σύνδεση</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Connection refused</source>
        <translation>η σύνδεση δεν έγινε δεκτή</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>η σύνδεση έληξε</translation>
    </message>
    <message>
        <source>Connection reset by peer</source>
        <translation>ο άλλος έκοψε τη σύνδεση</translation>
    </message>
    <message>
        <source>The remote host closed the connection</source>
        <translation>ο άλλος έκλεισε τη σύνδεση</translation>
    </message>
    <message>
        <source>Host unreachable</source>
        <translation>ο υπολογιστής δεν είναι προσβάσιμος</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>το δίκτυο δεν είναι προσβάσιμο</translation>
    </message>
    <message>
        <source>Network error</source>
        <translation>σφάλμα δικτύου</translation>
    </message>
    <message>
        <source>Network operation timed out</source>
        <translation>έληξε ο χρόνος</translation>
    </message>
    <message>
        <source>Network dropped connection on reset</source>
        <translation>το δίκτυο έκοψε τη σύνδεση</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>δεν επιτρέπεται</translation>
    </message>
    <message>
        <source>The bound address is already in use</source>
        <translation>η διεύθυνση χρησιμοποιείται</translation>
    </message>
    <message>
        <source>The address is not available</source>
        <translation>η διεύθυνση δεν είναι διαθέσιμη</translation>
    </message>
    <message>
        <source>The address is protected</source>
        <translation>η διεύθυνση είναι προστατευμένη</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>άγνωστο σφάλμα</translation>
    </message>
    <message>
        <source>Out of resources</source>
        <translation>δεν υπάρχουν πόροι</translation>
    </message>
</context>
<context>
    <name>QHostInfoAgent</name>
    <message>
        <source>Host not found</source>
        <translation>ο υπολογιστής δεν βρέθηκε</translation>
    </message>
    <message>
        <source>Unknown address type</source>
        <translation>άγνωστος τύπος διεύθυνσης</translation>
    </message>
    <message>
        <source>Invalid hostname</source>
        <translation>άκυρο όνομα υπολογιστή</translation>
    </message>
    <message>
        <source>No host name given</source>
        <translation>χωρίς όνομα υπολογιστή</translation>
    </message>
</context>
</TS>

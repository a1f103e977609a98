<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutView</name>
    <message>
        <source>Fernwick</source>
        <extracomment>The name of the game. Stays as it is in every language.</extracomment>
        <translation>Fernwick</translation>
    </message>
    <message>
        <source>Version %@</source>
        <extracomment>%@ is a number such as 1.0.0; it has to stay.</extracomment>
        <translation>Version %@</translation>
    </message>
    <message>
        <source>Grown from what others share. Thank you.</source>
        <extracomment>Of the fonts and libraries above, whose makers share them.</extracomment>
        <translation>Gewachsen aus dem, was andere teilen. Danke.</translation>
    </message>
</context>
<context>
    <name>Board</name>
    <message>
        <source>Snake board. Score %lld. Use arrow keys or W A S D to move.</source>
        <extracomment>Read aloud for the picture of the board. %lld is the score; it has to stay.</extracomment>
        <translation>Spielfeld der Schlange. %lld Punkte. Gesteuert wird mit den Pfeiltasten oder W A S D.</translation>
    </message>
</context>
<context>
    <name>ControlRow</name>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>IN THE FLOW</source>
        <extracomment>What the game is doing, in tiny capitals: a run is going on.</extracomment>
        <translation>GANZ IM FLUSS</translation>
    </message>
    <message>
        <source>ANOTHER CHANCE TO GROW</source>
        <extracomment>The run is over.</extracomment>
        <translation>ZEIT, NEU ZU WACHSEN</translation>
    </message>
    <message>
        <source>TAKE A BREATH</source>
        <extracomment>The run is paused; and: no run has been started yet, of a classic game in a new garden.</extracomment>
        <translation>TIEF DURCHATMEN</translation>
    </message>
    <message>
        <source>THE CLASSIC, REPLANTED</source>
        <translation>DER KLASSIKER, NEU GEPFLANZT</translation>
    </message>
</context>
<context>
    <name>FullScreenHint</name>
    <message>
        <source>Press F11 to leave full screen</source>
        <translation>F11 drücken, um das Vollbild zu verlassen</translation>
    </message>
</context>
<context>
    <name>GameOverView</name>
    <message>
        <source>Fully grown.</source>
        <extracomment>Headlines of an ended run: the snake fills the whole board; it struck something.</extracomment>
        <translation>Ausgewachsen.</translation>
    </message>
    <message>
        <source>Game over.</source>
        <translation>Spiel vorbei.</translation>
    </message>
    <message>
        <source>%lld POINTS  ·  %@</source>
        <extracomment>%lld is the score, %@ the name of the speed; both have to stay. Two spaces round the dot.</extracomment>
        <translation>%lld PUNKTE  ·  %@</translation>
    </message>
</context>
<context>
    <name>GameWindow</name>
    <message>
        <source>Fernwick</source>
        <extracomment>The name of the game. Stays as it is in every language.</extracomment>
        <translation>Fernwick</translation>
    </message>
</context>
<context>
    <name>Garden::ChoiceButton</name>
    <message>
        <source>Press Return to choose.</source>
        <extracomment>Read aloud after the name of a speed.</extracomment>
        <translation>Zum Auswählen die Eingabetaste drücken.</translation>
    </message>
</context>
<context>
    <name>Garden::Sheet</name>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>HeaderRow</name>
    <message>
        <source>SCORE</source>
        <extracomment>A tiny label above a number; so is the next. In capitals where the script has them.</extracomment>
        <translation>PUNKTE</translation>
    </message>
    <message>
        <source>PERSONAL BEST</source>
        <translation>DEIN REKORD</translation>
    </message>
    <message>
        <source>FERNWICK</source>
        <extracomment>The name of the game as its wordmark. Stays as it is in every language.</extracomment>
        <translation>FERNWICK</translation>
    </message>
    <message>
        <source>A little room to grow.</source>
        <extracomment>The line under the wordmark: of the garden, and of whoever plays in it.</extracomment>
        <translation>Ein wenig Raum zum Wachsen.</translation>
    </message>
</context>
<context>
    <name>HighScoresView</name>
    <message>
        <source>Speed</source>
        <extracomment>Read aloud for the choice between the speeds.</extracomment>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>The high scores.</source>
        <translation>Die Bestenliste.</translation>
    </message>
    <message>
        <source>Top 10 for each speed · saved on this Mac</source>
        <translation>Top 10 für jedes Tempo · auf diesem Mac gespeichert</translation>
    </message>
    <message>
        <source>Top 10 for each speed · saved on this computer</source>
        <translation>Top 10 für jedes Tempo · auf diesem Computer gespeichert</translation>
    </message>
</context>
<context>
    <name>HintRow</name>
    <message>
        <source>High scores</source>
        <translation>Bestenliste</translation>
    </message>
    <message>
        <source>Toggle sound effects</source>
        <translation>Klänge ein- oder ausschalten</translation>
    </message>
    <message>
        <source>Pause or resume</source>
        <translation>Pausieren oder fortsetzen</translation>
    </message>
    <message>
        <source>or WASD to move</source>
        <extracomment>Follows the four arrows. WASD stays as it is: the game shows ZQSD instead where keyboards have these letters there.</extracomment>
        <translation>oder WASD zum Steuern</translation>
    </message>
    <message>
        <source>·   SPACE to pause   ·   R to restart</source>
        <extracomment>Three spaces on each side of a dot, as here. R stays a Latin letter.</extracomment>
        <translation>·   LEERTASTE für Pause   ·   R für Neustart</translation>
    </message>
</context>
<context>
    <name>KeysView</name>
    <message>
        <source>The keys.</source>
        <translation>Die Tasten.</translation>
    </message>
    <message>
        <source>Move</source>
        <extracomment>What the keys of the game do: short phrases, in the words of the menus.</extracomment>
        <translation>Steuern</translation>
    </message>
    <message>
        <source>Start, pause or resume</source>
        <translation>Starten, pausieren oder fortsetzen</translation>
    </message>
    <message>
        <source>Pause, or go back</source>
        <translation>Pausieren oder zurück</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>Neu starten</translation>
    </message>
    <message>
        <source>Pause or resume</source>
        <translation>Pausieren oder fortsetzen</translation>
    </message>
    <message>
        <source>High scores</source>
        <translation>Bestenliste</translation>
    </message>
    <message>
        <source>Enter or leave full screen</source>
        <translation>Vollbild ein oder aus</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>Menüs</translation>
    </message>
    <message>
        <source>Reach a button, press it</source>
        <translation>Schaltfläche ansteuern, drücken</translation>
    </message>
    <message>
        <source>These keys</source>
        <translation>Diese Tasten</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
</context>
<context>
    <name>MenuCommands</name>
    <message>
        <source>File</source>
        <extracomment>Titles of menus; they and their items are worded as the desktops of the language do.</extracomment>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Spiel</translation>
    </message>
    <message>
        <source>New Game</source>
        <translation>Neues Spiel</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Toggle Full Screen</source>
        <translation>Vollbild ein/aus</translation>
    </message>
    <message>
        <source>High Scores</source>
        <translation>Bestenliste</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Sound Effects</source>
        <translation>Klänge</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausieren</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>About Fernwick</source>
        <translation>Über Fernwick</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Save score</source>
        <translation>Ergebnis speichern</translation>
    </message>
    <message>
        <source>Your name</source>
        <extracomment>Shown in the empty field.</extracomment>
        <translation>Dein Name</translation>
    </message>
    <message>
        <source>Player name</source>
        <translation>Spielername</translation>
    </message>
    <message>
        <source>Skip saving</source>
        <translation>Nicht speichern</translation>
    </message>
    <message>
        <source>Leave your name in the garden.</source>
        <translation>Hinterlass deinen Namen im Garten.</translation>
    </message>
    <message>
        <source>Up to 24 characters · saved on this Mac</source>
        <translation>Bis zu 24 Zeichen · auf diesem Mac gespeichert</translation>
    </message>
    <message>
        <source>Up to 24 characters · saved on this computer</source>
        <translation>Bis zu 24 Zeichen · auf diesem Computer gespeichert</translation>
    </message>
</context>
<context>
    <name>Overlay</name>
    <message>
        <source>PRESS SPACE</source>
        <extracomment>The space bar.</extracomment>
        <translation>LEERTASTE DRÜCKEN</translation>
    </message>
    <message>
        <source>Fully grown.</source>
        <extracomment>Headlines of an ended run: the snake fills the whole board; it struck something.</extracomment>
        <translation>Ausgewachsen.</translation>
    </message>
    <message>
        <source>A good place to begin again.</source>
        <translation>Ein guter Ort für einen neuen Anfang.</translation>
    </message>
    <message>
        <source>You gathered %lld points. Let&apos;s grow a little further.</source>
        <extracomment>%lld is the score; it has to stay.</extracomment>
        <translation>Du hast %lld Punkte gesammelt. Wachsen wir noch ein wenig weiter.</translation>
    </message>
    <message>
        <source>Grow again</source>
        <extracomment>A button; so are &quot;Keep growing&quot; and &quot;Let&apos;s grow&quot;. An arrow follows the words.</extracomment>
        <translation>Noch einmal wachsen</translation>
    </message>
    <message>
        <source>No rush.</source>
        <extracomment>The headline of the pause.</extracomment>
        <translation>Nur keine Eile.</translation>
    </message>
    <message>
        <source>Your garden will be here when you&apos;re ready.</source>
        <translation>Dein Garten wartet hier, bis du so weit bist.</translation>
    </message>
    <message>
        <source>Keep growing</source>
        <translation>Weiterwachsen</translation>
    </message>
    <message>
        <source>Find your flow.</source>
        <extracomment>The headline before the first run.</extracomment>
        <translation>Finde deinen Rhythmus.</translation>
    </message>
    <message>
        <source>Gather the fruit. Grow a little longer. Stay curious.</source>
        <translation>Sammle die Früchte. Wachse noch ein wenig. Bleib neugierig.</translation>
    </message>
    <message>
        <source>Let&apos;s grow</source>
        <translation>Lass uns wachsen</translation>
    </message>
</context>
<context>
    <name>Pace</name>
    <message>
        <source>Gentle</source>
        <extracomment>The three speeds, each a short word of its own: slow, as usual, fast.</extracomment>
        <translation>Sanft</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>Klassisch</translation>
    </message>
    <message>
        <source>Swift</source>
        <translation>Flink</translation>
    </message>
</context>
<context>
    <name>QAccessibleActionInterface</name>
    <message>
        <source>Press</source>
        <extracomment>What can be done with a button, and what that means; read aloud.</extracomment>
        <translation>Drücken</translation>
    </message>
    <message>
        <source>Triggers the action</source>
        <translation>Löst die Aktion aus</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <extracomment>The menu of a text field, worded as the desktops of the language do.</extracomment>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <extracomment>Keys, as they are written on the keyboards of the language. &quot;Meta&quot; is the key with a logo next to Alt, which Linux desktops call &quot;Super&quot;.</extracomment>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>Meta</source>
        <translation>Super</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Eingabe</translation>
    </message>
</context>
<context>
    <name>SavedBoard</name>
    <message>
        <source>Play again</source>
        <translation>Noch einmal spielen</translation>
    </message>
    <message>
        <source>SPACE TO PLAY AGAIN</source>
        <extracomment>The space bar.</extracomment>
        <translation>LEERTASTE FÜR EIN NEUES SPIEL</translation>
    </message>
    <message>
        <source>Score saved · Top 10</source>
        <translation>Ergebnis gespeichert · Top 10</translation>
    </message>
    <message>
        <source>Top 10</source>
        <translation>Top 10</translation>
    </message>
</context>
<context>
    <name>ScoreRows</name>
    <message>
        <source>A fresh start. Be the first on the board.</source>
        <translation>Ein frisches Beet. Der erste Name kann deiner sein.</translation>
    </message>
    <message>
        <source>Scores</source>
        <extracomment>Read aloud for the list of scores.</extracomment>
        <translation>Ergebnisse</translation>
    </message>
</context>
<context>
    <name>TitleBand</name>
    <message>
        <source>Maximise</source>
        <extracomment>Tooltips of the window buttons, in the words that desktops use in the language.</extracomment>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
</TS>

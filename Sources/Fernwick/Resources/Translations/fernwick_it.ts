<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
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
        <translation>Versione %@</translation>
    </message>
    <message>
        <source>Grown from what others share. Thank you.</source>
        <extracomment>Of the fonts and libraries above, whose makers share them.</extracomment>
        <translation>Cresciuto da ciò che altri condividono. Grazie.</translation>
    </message>
</context>
<context>
    <name>Board</name>
    <message>
        <source>Snake board. Score %lld. Use arrow keys or W A S D to move.</source>
        <extracomment>Read aloud for the picture of the board. %lld is the score; it has to stay.</extracomment>
        <translation>Campo di gioco del serpente. Punteggio: %lld. Muoviti con le frecce o W A S D.</translation>
    </message>
</context>
<context>
    <name>ControlRow</name>
    <message>
        <source>Speed</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>IN THE FLOW</source>
        <extracomment>What the game is doing, in tiny capitals: a run is going on.</extracomment>
        <translation>NEL FLUSSO</translation>
    </message>
    <message>
        <source>ANOTHER CHANCE TO GROW</source>
        <extracomment>The run is over.</extracomment>
        <translation>UN’ALTRA OCCASIONE PER CRESCERE</translation>
    </message>
    <message>
        <source>TAKE A BREATH</source>
        <extracomment>The run is paused; and: no run has been started yet, of a classic game in a new garden.</extracomment>
        <translation>PRENDI FIATO</translation>
    </message>
    <message>
        <source>THE CLASSIC, REPLANTED</source>
        <translation>IL CLASSICO, RIPIANTATO</translation>
    </message>
</context>
<context>
    <name>FullScreenHint</name>
    <message>
        <source>Press F11 to leave full screen</source>
        <translation>Premi F11 per uscire dallo schermo intero</translation>
    </message>
</context>
<context>
    <name>GameOverView</name>
    <message>
        <source>Fully grown.</source>
        <extracomment>Headlines of an ended run: the snake fills the whole board; it struck something.</extracomment>
        <translation>Cresciuto del tutto.</translation>
    </message>
    <message>
        <source>Game over.</source>
        <translation>Partita finita.</translation>
    </message>
    <message>
        <source>%lld POINTS  ·  %@</source>
        <extracomment>%lld is the score, %@ the name of the speed; both have to stay. Two spaces round the dot.</extracomment>
        <translation>%lld PUNTI  ·  %@</translation>
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
        <translation>Premi Invio per scegliere.</translation>
    </message>
</context>
<context>
    <name>Garden::Sheet</name>
    <message>
        <source>Done</source>
        <translation>Fatto</translation>
    </message>
</context>
<context>
    <name>HeaderRow</name>
    <message>
        <source>SCORE</source>
        <extracomment>A tiny label above a number; so is the next. In capitals where the script has them.</extracomment>
        <translation>PUNTI</translation>
    </message>
    <message>
        <source>PERSONAL BEST</source>
        <translation>RECORD PERSONALE</translation>
    </message>
    <message>
        <source>FERNWICK</source>
        <extracomment>The name of the game as its wordmark. Stays as it is in every language.</extracomment>
        <translation>FERNWICK</translation>
    </message>
    <message>
        <source>A little room to grow.</source>
        <extracomment>The line under the wordmark: of the garden, and of whoever plays in it.</extracomment>
        <translation>Un po’ di spazio per crescere.</translation>
    </message>
</context>
<context>
    <name>HighScoresView</name>
    <message>
        <source>Speed</source>
        <extracomment>Read aloud for the choice between the speeds.</extracomment>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>The high scores.</source>
        <translation>I punteggi migliori.</translation>
    </message>
    <message>
        <source>Top 10 for each speed · saved on this Mac</source>
        <translation>I 10 migliori per ogni velocità · salvati su questo Mac</translation>
    </message>
    <message>
        <source>Top 10 for each speed · saved on this computer</source>
        <translation>I 10 migliori per ogni velocità · salvati su questo computer</translation>
    </message>
</context>
<context>
    <name>HintRow</name>
    <message>
        <source>High scores</source>
        <translation>Punteggi migliori</translation>
    </message>
    <message>
        <source>Toggle sound effects</source>
        <translation>Attiva o disattiva gli effetti sonori</translation>
    </message>
    <message>
        <source>Pause or resume</source>
        <translation>Metti in pausa o riprendi</translation>
    </message>
    <message>
        <source>or WASD to move</source>
        <extracomment>Follows the four arrows. WASD stays as it is: the game shows ZQSD instead where keyboards have these letters there.</extracomment>
        <translation>o WASD per muoverti</translation>
    </message>
    <message>
        <source>·   SPACE to pause   ·   R to restart</source>
        <extracomment>Three spaces on each side of a dot, as here. R stays a Latin letter.</extracomment>
        <translation>·   SPAZIO per la pausa   ·   R per ricominciare</translation>
    </message>
</context>
<context>
    <name>KeysView</name>
    <message>
        <source>The keys.</source>
        <translation>I tasti.</translation>
    </message>
    <message>
        <source>Move</source>
        <extracomment>What the keys of the game do: short phrases, in the words of the menus.</extracomment>
        <translation>Muoviti</translation>
    </message>
    <message>
        <source>Start, pause or resume</source>
        <translation>Inizia, metti in pausa o riprendi</translation>
    </message>
    <message>
        <source>Pause, or go back</source>
        <translation>Metti in pausa o torna indietro</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>Ricomincia</translation>
    </message>
    <message>
        <source>Pause or resume</source>
        <translation>Metti in pausa o riprendi</translation>
    </message>
    <message>
        <source>High scores</source>
        <translation>Punteggi migliori</translation>
    </message>
    <message>
        <source>Enter or leave full screen</source>
        <translation>Attiva o disattiva lo schermo intero</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Reach a button, press it</source>
        <translation>Vai a un pulsante e premilo</translation>
    </message>
    <message>
        <source>These keys</source>
        <translation>Questi tasti</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
</context>
<context>
    <name>MenuCommands</name>
    <message>
        <source>File</source>
        <extracomment>Titles of menus; they and their items are worded as the desktops of the language do.</extracomment>
        <translation>File</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Gioco</translation>
    </message>
    <message>
        <source>New Game</source>
        <translation>Nuova partita</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Toggle Full Screen</source>
        <translation>Attiva/disattiva schermo intero</translation>
    </message>
    <message>
        <source>High Scores</source>
        <translation>Punteggi migliori</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Riprendi</translation>
    </message>
    <message>
        <source>Sound Effects</source>
        <translation>Effetti sonori</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Metti in pausa</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasti</translation>
    </message>
    <message>
        <source>About Fernwick</source>
        <translation>Informazioni su Fernwick</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Save score</source>
        <translation>Salva punteggio</translation>
    </message>
    <message>
        <source>Your name</source>
        <extracomment>Shown in the empty field.</extracomment>
        <translation>Il tuo nome</translation>
    </message>
    <message>
        <source>Player name</source>
        <translation>Nome del giocatore</translation>
    </message>
    <message>
        <source>Skip saving</source>
        <translation>Non salvare</translation>
    </message>
    <message>
        <source>Leave your name in the garden.</source>
        <translation>Lascia il tuo nome nel giardino.</translation>
    </message>
    <message>
        <source>Up to 24 characters · saved on this Mac</source>
        <translation>Fino a 24 caratteri · salvato su questo Mac</translation>
    </message>
    <message>
        <source>Up to 24 characters · saved on this computer</source>
        <translation>Fino a 24 caratteri · salvato su questo computer</translation>
    </message>
</context>
<context>
    <name>Overlay</name>
    <message>
        <source>PRESS SPACE</source>
        <extracomment>The space bar.</extracomment>
        <translation>PREMI SPAZIO</translation>
    </message>
    <message>
        <source>Fully grown.</source>
        <extracomment>Headlines of an ended run: the snake fills the whole board; it struck something.</extracomment>
        <translation>Cresciuto del tutto.</translation>
    </message>
    <message>
        <source>A good place to begin again.</source>
        <translation>Un buon posto per ricominciare.</translation>
    </message>
    <message>
        <source>You gathered %lld points. Let&apos;s grow a little further.</source>
        <extracomment>%lld is the score; it has to stay.</extracomment>
        <translation>Hai raccolto %lld punti. Cresciamo ancora un po’.</translation>
    </message>
    <message>
        <source>Grow again</source>
        <extracomment>A button; so are &quot;Keep growing&quot; and &quot;Let&apos;s grow&quot;. An arrow follows the words.</extracomment>
        <translation>Cresci di nuovo</translation>
    </message>
    <message>
        <source>No rush.</source>
        <extracomment>The headline of the pause.</extracomment>
        <translation>Senza fretta.</translation>
    </message>
    <message>
        <source>Your garden will be here when you&apos;re ready.</source>
        <translation>Il tuo giardino sarà qui, quando vorrai.</translation>
    </message>
    <message>
        <source>Keep growing</source>
        <translation>Continua a crescere</translation>
    </message>
    <message>
        <source>Find your flow.</source>
        <extracomment>The headline before the first run.</extracomment>
        <translation>Trova il tuo ritmo.</translation>
    </message>
    <message>
        <source>Gather the fruit. Grow a little longer. Stay curious.</source>
        <translation>Raccogli i frutti. Cresci ancora un po’. Coltiva la curiosità.</translation>
    </message>
    <message>
        <source>Let&apos;s grow</source>
        <translation>Cresciamo</translation>
    </message>
</context>
<context>
    <name>Pace</name>
    <message>
        <source>Gentle</source>
        <extracomment>The three speeds, each a short word of its own: slow, as usual, fast.</extracomment>
        <translation>Dolce</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>Classica</translation>
    </message>
    <message>
        <source>Swift</source>
        <translation>Rapida</translation>
    </message>
</context>
<context>
    <name>QAccessibleActionInterface</name>
    <message>
        <source>Press</source>
        <extracomment>What can be done with a button, and what that means; read aloud.</extracomment>
        <translation>Premi</translation>
    </message>
    <message>
        <source>Triggers the action</source>
        <translation>Esegue l’azione</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <extracomment>The menu of a text field, worded as the desktops of the language do.</extracomment>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ripeti</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Taglia</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Incolla</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <extracomment>Keys, as they are written on the keyboards of the language. &quot;Meta&quot; is the key with a logo next to Alt, which Linux desktops call &quot;Super&quot;.</extracomment>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Maiusc</translation>
    </message>
    <message>
        <source>Meta</source>
        <translation>Super</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Spazio</translation>
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
        <translation>Invio</translation>
    </message>
</context>
<context>
    <name>SavedBoard</name>
    <message>
        <source>Play again</source>
        <translation>Gioca ancora</translation>
    </message>
    <message>
        <source>SPACE TO PLAY AGAIN</source>
        <extracomment>The space bar.</extracomment>
        <translation>SPAZIO PER GIOCARE ANCORA</translation>
    </message>
    <message>
        <source>Score saved · Top 10</source>
        <translation>Punteggio salvato · Top 10</translation>
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
        <translation>Un nuovo inizio. Il primo nome può essere il tuo.</translation>
    </message>
    <message>
        <source>Scores</source>
        <extracomment>Read aloud for the list of scores.</extracomment>
        <translation>Punteggi</translation>
    </message>
</context>
<context>
    <name>TitleBand</name>
    <message>
        <source>Maximise</source>
        <extracomment>Tooltips of the window buttons, in the words that desktops use in the language.</extracomment>
        <translation>Massimizza</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>Minimizza</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
</TS>

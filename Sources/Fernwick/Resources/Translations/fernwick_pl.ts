<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
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
        <translation>Wersja %@</translation>
    </message>
    <message>
        <source>Grown from what others share. Thank you.</source>
        <extracomment>Of the fonts and libraries above, whose makers share them.</extracomment>
        <translation>Wyrosło z tego, czym dzielą się inni. Dziękujemy.</translation>
    </message>
</context>
<context>
    <name>Board</name>
    <message>
        <source>Snake board. Score %lld. Use arrow keys or W A S D to move.</source>
        <extracomment>Read aloud for the picture of the board. %lld is the score; it has to stay.</extracomment>
        <translation>Plansza węża. Wynik: %lld. Sterowanie strzałkami lub klawiszami W A S D.</translation>
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
        <translation>W SWOIM RYTMIE</translation>
    </message>
    <message>
        <source>ANOTHER CHANCE TO GROW</source>
        <extracomment>The run is over.</extracomment>
        <translation>KOLEJNA SZANSA, BY ROSNĄĆ</translation>
    </message>
    <message>
        <source>TAKE A BREATH</source>
        <extracomment>The run is paused; and: no run has been started yet, of a classic game in a new garden.</extracomment>
        <translation>WEŹ ODDECH</translation>
    </message>
    <message>
        <source>THE CLASSIC, REPLANTED</source>
        <translation>KLASYK ZASADZONY NA NOWO</translation>
    </message>
</context>
<context>
    <name>FullScreenHint</name>
    <message>
        <source>Press F11 to leave full screen</source>
        <translation>Naciśnij F11, by opuścić pełny ekran</translation>
    </message>
</context>
<context>
    <name>GameOverView</name>
    <message>
        <source>Fully grown.</source>
        <extracomment>Headlines of an ended run: the snake fills the whole board; it struck something.</extracomment>
        <translation>W pełni wyrośnięty.</translation>
    </message>
    <message>
        <source>Game over.</source>
        <translation>Koniec gry.</translation>
    </message>
    <message>
        <source>%lld POINTS  ·  %@</source>
        <extracomment>%lld is the score, %@ the name of the speed; both have to stay. Two spaces round the dot.</extracomment>
        <translation>%lld PUNKTÓW  ·  %@</translation>
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
        <translation>Naciśnij Enter, by wybrać.</translation>
    </message>
</context>
<context>
    <name>Garden::Sheet</name>
    <message>
        <source>Done</source>
        <translation>Gotowe</translation>
    </message>
</context>
<context>
    <name>HeaderRow</name>
    <message>
        <source>SCORE</source>
        <extracomment>A tiny label above a number; so is the next. In capitals where the script has them.</extracomment>
        <translation>WYNIK</translation>
    </message>
    <message>
        <source>PERSONAL BEST</source>
        <translation>TWÓJ REKORD</translation>
    </message>
    <message>
        <source>FERNWICK</source>
        <extracomment>The name of the game as its wordmark. Stays as it is in every language.</extracomment>
        <translation>FERNWICK</translation>
    </message>
    <message>
        <source>A little room to grow.</source>
        <extracomment>The line under the wordmark: of the garden, and of whoever plays in it.</extracomment>
        <translation>Trochę miejsca, by rosnąć.</translation>
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
        <translation>Najlepsze wyniki.</translation>
    </message>
    <message>
        <source>Top 10 for each speed · saved on this Mac</source>
        <translation>Top 10 w każdym tempie · zapisane na tym Macu</translation>
    </message>
    <message>
        <source>Top 10 for each speed · saved on this computer</source>
        <translation>Top 10 w każdym tempie · zapisane na tym komputerze</translation>
    </message>
</context>
<context>
    <name>HintRow</name>
    <message>
        <source>High scores</source>
        <translation>Najlepsze wyniki</translation>
    </message>
    <message>
        <source>Toggle sound effects</source>
        <translation>Włącz lub wyłącz efekty dźwiękowe</translation>
    </message>
    <message>
        <source>Pause or resume</source>
        <translation>Wstrzymaj lub wznów</translation>
    </message>
    <message>
        <source>or WASD to move</source>
        <extracomment>Follows the four arrows. WASD stays as it is: the game shows ZQSD instead where keyboards have these letters there.</extracomment>
        <translation>lub WASD, by się poruszać</translation>
    </message>
    <message>
        <source>·   SPACE to pause   ·   R to restart</source>
        <extracomment>Three spaces on each side of a dot, as here. R stays a Latin letter.</extracomment>
        <translation>·   SPACJA, by wstrzymać   ·   R, by zacząć od nowa</translation>
    </message>
</context>
<context>
    <name>KeysView</name>
    <message>
        <source>The keys.</source>
        <translation>Klawisze.</translation>
    </message>
    <message>
        <source>Move</source>
        <extracomment>What the keys of the game do: short phrases, in the words of the menus.</extracomment>
        <translation>Poruszaj się</translation>
    </message>
    <message>
        <source>Start, pause or resume</source>
        <translation>Zacznij, wstrzymaj lub wznów</translation>
    </message>
    <message>
        <source>Pause, or go back</source>
        <translation>Wstrzymaj lub wróć</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>Zacznij od nowa</translation>
    </message>
    <message>
        <source>Pause or resume</source>
        <translation>Wstrzymaj lub wznów</translation>
    </message>
    <message>
        <source>High scores</source>
        <translation>Najlepsze wyniki</translation>
    </message>
    <message>
        <source>Enter or leave full screen</source>
        <translation>Włącz lub wyłącz pełny ekran</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Reach a button, press it</source>
        <translation>Przejdź do przycisku, naciśnij go</translation>
    </message>
    <message>
        <source>These keys</source>
        <translation>Te klawisze</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
</context>
<context>
    <name>MenuCommands</name>
    <message>
        <source>File</source>
        <extracomment>Titles of menus; they and their items are worded as the desktops of the language do.</extracomment>
        <translation>Plik</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Gra</translation>
    </message>
    <message>
        <source>New Game</source>
        <translation>Nowa gra</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Toggle Full Screen</source>
        <translation>Przełącz pełny ekran</translation>
    </message>
    <message>
        <source>High Scores</source>
        <translation>Najlepsze wyniki</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Wznów</translation>
    </message>
    <message>
        <source>Sound Effects</source>
        <translation>Efekty dźwiękowe</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Wstrzymaj</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Klawisze</translation>
    </message>
    <message>
        <source>About Fernwick</source>
        <translation>O grze Fernwick</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Save score</source>
        <translation>Zapisz wynik</translation>
    </message>
    <message>
        <source>Your name</source>
        <extracomment>Shown in the empty field.</extracomment>
        <translation>Twoje imię</translation>
    </message>
    <message>
        <source>Player name</source>
        <translation>Imię gracza</translation>
    </message>
    <message>
        <source>Skip saving</source>
        <translation>Nie zapisuj</translation>
    </message>
    <message>
        <source>Leave your name in the garden.</source>
        <translation>Zostaw swoje imię w ogrodzie.</translation>
    </message>
    <message>
        <source>Up to 24 characters · saved on this Mac</source>
        <translation>Do 24 znaków · zapisane na tym Macu</translation>
    </message>
    <message>
        <source>Up to 24 characters · saved on this computer</source>
        <translation>Do 24 znaków · zapisane na tym komputerze</translation>
    </message>
</context>
<context>
    <name>Overlay</name>
    <message>
        <source>PRESS SPACE</source>
        <extracomment>The space bar.</extracomment>
        <translation>NACIŚNIJ SPACJĘ</translation>
    </message>
    <message>
        <source>Fully grown.</source>
        <extracomment>Headlines of an ended run: the snake fills the whole board; it struck something.</extracomment>
        <translation>W pełni wyrośnięty.</translation>
    </message>
    <message>
        <source>A good place to begin again.</source>
        <translation>Dobre miejsce, by zacząć od nowa.</translation>
    </message>
    <message>
        <source>You gathered %lld points. Let&apos;s grow a little further.</source>
        <extracomment>%lld is the score; it has to stay.</extracomment>
        <translation>Zebrano %lld punktów. Rośnijmy jeszcze trochę.</translation>
    </message>
    <message>
        <source>Grow again</source>
        <extracomment>A button; so are &quot;Keep growing&quot; and &quot;Let&apos;s grow&quot;. An arrow follows the words.</extracomment>
        <translation>Rośnij znowu</translation>
    </message>
    <message>
        <source>No rush.</source>
        <extracomment>The headline of the pause.</extracomment>
        <translation>Bez pośpiechu.</translation>
    </message>
    <message>
        <source>Your garden will be here when you&apos;re ready.</source>
        <translation>Twój ogród poczeka, aż wrócisz.</translation>
    </message>
    <message>
        <source>Keep growing</source>
        <translation>Rośnij dalej</translation>
    </message>
    <message>
        <source>Find your flow.</source>
        <extracomment>The headline before the first run.</extracomment>
        <translation>Znajdź swój rytm.</translation>
    </message>
    <message>
        <source>Gather the fruit. Grow a little longer. Stay curious.</source>
        <translation>Zbieraj owoce. Rośnij jeszcze trochę. Nie trać ciekawości.</translation>
    </message>
    <message>
        <source>Let&apos;s grow</source>
        <translation>Rośnijmy</translation>
    </message>
</context>
<context>
    <name>Pace</name>
    <message>
        <source>Gentle</source>
        <extracomment>The three speeds, each a short word of its own: slow, as usual, fast.</extracomment>
        <translation>Łagodne</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>Klasyczne</translation>
    </message>
    <message>
        <source>Swift</source>
        <translation>Żwawe</translation>
    </message>
</context>
<context>
    <name>QAccessibleActionInterface</name>
    <message>
        <source>Press</source>
        <extracomment>What can be done with a button, and what that means; read aloud.</extracomment>
        <translation>Naciśnij</translation>
    </message>
    <message>
        <source>Triggers the action</source>
        <translation>Wykonuje działanie</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <extracomment>The menu of a text field, worded as the desktops of the language do.</extracomment>
        <translation>&amp;Cofnij</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ponów</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>W&amp;ytnij</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiuj</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Wk&amp;lej</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Zaznacz wszystko</translation>
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
        <translation>Shift</translation>
    </message>
    <message>
        <source>Meta</source>
        <translation>Super</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Spacja</translation>
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
        <translation>Enter</translation>
    </message>
</context>
<context>
    <name>SavedBoard</name>
    <message>
        <source>Play again</source>
        <translation>Zagraj ponownie</translation>
    </message>
    <message>
        <source>SPACE TO PLAY AGAIN</source>
        <extracomment>The space bar.</extracomment>
        <translation>SPACJA, BY ZAGRAĆ PONOWNIE</translation>
    </message>
    <message>
        <source>Score saved · Top 10</source>
        <translation>Wynik zapisany · Top 10</translation>
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
        <translation>Nowy początek. Pierwsze miejsce czeka na ciebie.</translation>
    </message>
    <message>
        <source>Scores</source>
        <extracomment>Read aloud for the list of scores.</extracomment>
        <translation>Wyniki</translation>
    </message>
</context>
<context>
    <name>TitleBand</name>
    <message>
        <source>Maximise</source>
        <extracomment>Tooltips of the window buttons, in the words that desktops use in the language.</extracomment>
        <translation>Zmaksymalizuj</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>Zminimalizuj</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
</context>
</TS>

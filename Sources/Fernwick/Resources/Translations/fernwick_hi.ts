<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hi" sourcelanguage="en">
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
        <translation>संस्करण %@</translation>
    </message>
    <message>
        <source>Grown from what others share. Thank you.</source>
        <extracomment>Of the fonts and libraries above, whose makers share them.</extracomment>
        <translation>औरों ने जो बाँटा, उसी से उपजा। धन्यवाद।</translation>
    </message>
</context>
<context>
    <name>Board</name>
    <message>
        <source>Snake board. Score %lld. Use arrow keys or W A S D to move.</source>
        <extracomment>Read aloud for the picture of the board. %lld is the score; it has to stay.</extracomment>
        <translation>साँप का बोर्ड। अंक: %lld। चलने के लिए तीर कुंजियाँ या W A S D दबाएँ।</translation>
    </message>
</context>
<context>
    <name>ControlRow</name>
    <message>
        <source>Speed</source>
        <translation>गति</translation>
    </message>
    <message>
        <source>IN THE FLOW</source>
        <extracomment>What the game is doing, in tiny capitals: a run is going on.</extracomment>
        <translation>अपनी लय में</translation>
    </message>
    <message>
        <source>ANOTHER CHANCE TO GROW</source>
        <extracomment>The run is over.</extracomment>
        <translation>बढ़ने का एक और मौक़ा</translation>
    </message>
    <message>
        <source>TAKE A BREATH</source>
        <extracomment>The run is paused; and: no run has been started yet, of a classic game in a new garden.</extracomment>
        <translation>ज़रा साँस लें</translation>
    </message>
    <message>
        <source>THE CLASSIC, REPLANTED</source>
        <translation>पुराना खेल, नई मिट्टी में</translation>
    </message>
</context>
<context>
    <name>FullScreenHint</name>
    <message>
        <source>Press F11 to leave full screen</source>
        <translation>पूर्ण स्क्रीन से बाहर निकलने के लिए F11 दबाएँ</translation>
    </message>
</context>
<context>
    <name>GameOverView</name>
    <message>
        <source>Fully grown.</source>
        <extracomment>Headlines of an ended run: the snake fills the whole board; it struck something.</extracomment>
        <translation>पूरी तरह बढ़ गया।</translation>
    </message>
    <message>
        <source>Game over.</source>
        <translation>खेल समाप्त।</translation>
    </message>
    <message>
        <source>%lld POINTS  ·  %@</source>
        <extracomment>%lld is the score, %@ the name of the speed; both have to stay. Two spaces round the dot.</extracomment>
        <translation>%lld अंक  ·  %@</translation>
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
        <translation>चुनने के लिए Enter दबाएँ।</translation>
    </message>
</context>
<context>
    <name>Garden::Sheet</name>
    <message>
        <source>Done</source>
        <translation>हो गया</translation>
    </message>
</context>
<context>
    <name>HeaderRow</name>
    <message>
        <source>SCORE</source>
        <extracomment>A tiny label above a number; so is the next. In capitals where the script has them.</extracomment>
        <translation>अंक</translation>
    </message>
    <message>
        <source>PERSONAL BEST</source>
        <translation>आपका सर्वश्रेष्ठ</translation>
    </message>
    <message>
        <source>FERNWICK</source>
        <extracomment>The name of the game as its wordmark. Stays as it is in every language.</extracomment>
        <translation>FERNWICK</translation>
    </message>
    <message>
        <source>A little room to grow.</source>
        <extracomment>The line under the wordmark: of the garden, and of whoever plays in it.</extracomment>
        <translation>बढ़ने की थोड़ी-सी जगह।</translation>
    </message>
</context>
<context>
    <name>HighScoresView</name>
    <message>
        <source>Speed</source>
        <extracomment>Read aloud for the choice between the speeds.</extracomment>
        <translation>गति</translation>
    </message>
    <message>
        <source>The high scores.</source>
        <translation>सर्वोच्च अंक।</translation>
    </message>
    <message>
        <source>Top 10 for each speed · saved on this Mac</source>
        <translation>हर गति के शीर्ष 10 · इसी Mac पर सहेजे गए</translation>
    </message>
    <message>
        <source>Top 10 for each speed · saved on this computer</source>
        <translation>हर गति के शीर्ष 10 · इसी कंप्यूटर पर सहेजे गए</translation>
    </message>
</context>
<context>
    <name>HintRow</name>
    <message>
        <source>High scores</source>
        <translation>सर्वोच्च अंक</translation>
    </message>
    <message>
        <source>Toggle sound effects</source>
        <translation>ध्वनि प्रभाव चालू या बंद करें</translation>
    </message>
    <message>
        <source>Pause or resume</source>
        <translation>रोकें या जारी रखें</translation>
    </message>
    <message>
        <source>or WASD to move</source>
        <extracomment>Follows the four arrows. WASD stays as it is: the game shows ZQSD instead where keyboards have these letters there.</extracomment>
        <translation>या WASD से चलें</translation>
    </message>
    <message>
        <source>·   SPACE to pause   ·   R to restart</source>
        <extracomment>Three spaces on each side of a dot, as here. R stays a Latin letter.</extracomment>
        <translation>·   SPACE: रोकें   ·   R: फिर शुरू करें</translation>
    </message>
</context>
<context>
    <name>KeysView</name>
    <message>
        <source>The keys.</source>
        <translation>कुंजियाँ।</translation>
    </message>
    <message>
        <source>Move</source>
        <extracomment>What the keys of the game do: short phrases, in the words of the menus.</extracomment>
        <translation>चलें</translation>
    </message>
    <message>
        <source>Start, pause or resume</source>
        <translation>शुरू करें, रोकें या जारी रखें</translation>
    </message>
    <message>
        <source>Pause, or go back</source>
        <translation>रोकें या वापस जाएँ</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>फिर से शुरू करें</translation>
    </message>
    <message>
        <source>Pause or resume</source>
        <translation>रोकें या जारी रखें</translation>
    </message>
    <message>
        <source>High scores</source>
        <translation>सर्वोच्च अंक</translation>
    </message>
    <message>
        <source>Enter or leave full screen</source>
        <translation>पूर्ण स्क्रीन चालू या बंद करें</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>मेन्यू</translation>
    </message>
    <message>
        <source>Reach a button, press it</source>
        <translation>बटन पर जाएँ, उसे दबाएँ</translation>
    </message>
    <message>
        <source>These keys</source>
        <translation>ये कुंजियाँ</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>बाहर निकलें</translation>
    </message>
</context>
<context>
    <name>MenuCommands</name>
    <message>
        <source>File</source>
        <extracomment>Titles of menus; they and their items are worded as the desktops of the language do.</extracomment>
        <translation>फ़ाइल</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>खेल</translation>
    </message>
    <message>
        <source>New Game</source>
        <translation>नया खेल</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>बाहर निकलें</translation>
    </message>
    <message>
        <source>Toggle Full Screen</source>
        <translation>पूर्ण स्क्रीन चालू/बंद</translation>
    </message>
    <message>
        <source>High Scores</source>
        <translation>सर्वोच्च अंक</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>जारी रखें</translation>
    </message>
    <message>
        <source>Sound Effects</source>
        <translation>ध्वनि प्रभाव</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>रोकें</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>सहायता</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>कुंजियाँ</translation>
    </message>
    <message>
        <source>About Fernwick</source>
        <translation>Fernwick के बारे में</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Save score</source>
        <translation>अंक सहेजें</translation>
    </message>
    <message>
        <source>Your name</source>
        <extracomment>Shown in the empty field.</extracomment>
        <translation>आपका नाम</translation>
    </message>
    <message>
        <source>Player name</source>
        <translation>खिलाड़ी का नाम</translation>
    </message>
    <message>
        <source>Skip saving</source>
        <translation>न सहेजें</translation>
    </message>
    <message>
        <source>Leave your name in the garden.</source>
        <translation>बग़ीचे में अपना नाम छोड़ जाएँ।</translation>
    </message>
    <message>
        <source>Up to 24 characters · saved on this Mac</source>
        <translation>अधिकतम 24 अक्षर · इसी Mac पर सहेजा जाएगा</translation>
    </message>
    <message>
        <source>Up to 24 characters · saved on this computer</source>
        <translation>अधिकतम 24 अक्षर · इसी कंप्यूटर पर सहेजा जाएगा</translation>
    </message>
</context>
<context>
    <name>Overlay</name>
    <message>
        <source>PRESS SPACE</source>
        <extracomment>The space bar.</extracomment>
        <translation>SPACE दबाएँ</translation>
    </message>
    <message>
        <source>Fully grown.</source>
        <extracomment>Headlines of an ended run: the snake fills the whole board; it struck something.</extracomment>
        <translation>पूरी तरह बढ़ गया।</translation>
    </message>
    <message>
        <source>A good place to begin again.</source>
        <translation>फिर से शुरू करने की अच्छी जगह।</translation>
    </message>
    <message>
        <source>You gathered %lld points. Let&apos;s grow a little further.</source>
        <extracomment>%lld is the score; it has to stay.</extracomment>
        <translation>आपने %lld अंक बटोरे। चलिए, थोड़ा और बढ़ें।</translation>
    </message>
    <message>
        <source>Grow again</source>
        <extracomment>A button; so are &quot;Keep growing&quot; and &quot;Let&apos;s grow&quot;. An arrow follows the words.</extracomment>
        <translation>फिर से बढ़ें</translation>
    </message>
    <message>
        <source>No rush.</source>
        <extracomment>The headline of the pause.</extracomment>
        <translation>कोई जल्दी नहीं।</translation>
    </message>
    <message>
        <source>Your garden will be here when you&apos;re ready.</source>
        <translation>आपका बग़ीचा यहीं आपकी राह देखेगा।</translation>
    </message>
    <message>
        <source>Keep growing</source>
        <translation>बढ़ते रहें</translation>
    </message>
    <message>
        <source>Find your flow.</source>
        <extracomment>The headline before the first run.</extracomment>
        <translation>अपनी लय पाएँ।</translation>
    </message>
    <message>
        <source>Gather the fruit. Grow a little longer. Stay curious.</source>
        <translation>फल बटोरें। थोड़ा और बढ़ें। जिज्ञासा बनाए रखें।</translation>
    </message>
    <message>
        <source>Let&apos;s grow</source>
        <translation>चलिए, बढ़ें</translation>
    </message>
</context>
<context>
    <name>Pace</name>
    <message>
        <source>Gentle</source>
        <extracomment>The three speeds, each a short word of its own: slow, as usual, fast.</extracomment>
        <translation>धीमी</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>क्लासिक</translation>
    </message>
    <message>
        <source>Swift</source>
        <translation>तेज़</translation>
    </message>
</context>
<context>
    <name>QAccessibleActionInterface</name>
    <message>
        <source>Press</source>
        <extracomment>What can be done with a button, and what that means; read aloud.</extracomment>
        <translation>दबाएँ</translation>
    </message>
    <message>
        <source>Triggers the action</source>
        <translation>क्रिया करता है</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <extracomment>The menu of a text field, worded as the desktops of the language do.</extracomment>
        <translation>पूर्ववत करें (&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>फिर से करें (&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>काटें (&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>कॉपी करें (&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>चिपकाएँ (&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>हटाएँ</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>सभी चुनें</translation>
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
        <translation>Space</translation>
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
        <translation>फिर से खेलें</translation>
    </message>
    <message>
        <source>SPACE TO PLAY AGAIN</source>
        <extracomment>The space bar.</extracomment>
        <translation>फिर से खेलने के लिए SPACE</translation>
    </message>
    <message>
        <source>Score saved · Top 10</source>
        <translation>अंक सहेजे गए · शीर्ष 10</translation>
    </message>
    <message>
        <source>Top 10</source>
        <translation>शीर्ष 10</translation>
    </message>
</context>
<context>
    <name>ScoreRows</name>
    <message>
        <source>A fresh start. Be the first on the board.</source>
        <translation>नई शुरुआत। सूची में पहला नाम आपका हो।</translation>
    </message>
    <message>
        <source>Scores</source>
        <extracomment>Read aloud for the list of scores.</extracomment>
        <translation>अंकों की सूची</translation>
    </message>
</context>
<context>
    <name>TitleBand</name>
    <message>
        <source>Maximise</source>
        <extracomment>Tooltips of the window buttons, in the words that desktops use in the language.</extracomment>
        <translation>बड़ा करें</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>छोटा करें</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>बंद करें</translation>
    </message>
</context>
</TS>

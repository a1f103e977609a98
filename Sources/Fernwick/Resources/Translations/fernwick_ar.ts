<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
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
        <translation>الإصدار %@</translation>
    </message>
    <message>
        <source>Grown from what others share. Thank you.</source>
        <extracomment>Of the fonts and libraries above, whose makers share them.</extracomment>
        <translation>ثمرة ما يشاركه الآخرون. شكرًا لهم.</translation>
    </message>
</context>
<context>
    <name>Board</name>
    <message>
        <source>Snake board. Score %lld. Use arrow keys or W A S D to move.</source>
        <extracomment>Read aloud for the picture of the board. %lld is the score; it has to stay.</extracomment>
        <translation>لوحة الثعبان. النقاط: %lld. الحركة بمفاتيح الأسهم أو W A S D.</translation>
    </message>
</context>
<context>
    <name>ControlRow</name>
    <message>
        <source>Speed</source>
        <translation>السرعة</translation>
    </message>
    <message>
        <source>IN THE FLOW</source>
        <extracomment>What the game is doing, in tiny capitals: a run is going on.</extracomment>
        <translation>على إيقاعك</translation>
    </message>
    <message>
        <source>ANOTHER CHANCE TO GROW</source>
        <extracomment>The run is over.</extracomment>
        <translation>فرصة أخرى للنمو</translation>
    </message>
    <message>
        <source>TAKE A BREATH</source>
        <extracomment>The run is paused; and: no run has been started yet, of a classic game in a new garden.</extracomment>
        <translation>التقط أنفاسك</translation>
    </message>
    <message>
        <source>THE CLASSIC, REPLANTED</source>
        <translation>لعبة كلاسيكية، بغرس جديد</translation>
    </message>
</context>
<context>
    <name>FullScreenHint</name>
    <message>
        <source>Press F11 to leave full screen</source>
        <translation>اضغط F11 للخروج من ملء الشاشة</translation>
    </message>
</context>
<context>
    <name>GameOverView</name>
    <message>
        <source>Fully grown.</source>
        <extracomment>Headlines of an ended run: the snake fills the whole board; it struck something.</extracomment>
        <translation>اكتمل النمو.</translation>
    </message>
    <message>
        <source>Game over.</source>
        <translation>انتهت اللعبة.</translation>
    </message>
    <message>
        <source>%lld POINTS  ·  %@</source>
        <extracomment>%lld is the score, %@ the name of the speed; both have to stay. Two spaces round the dot.</extracomment>
        <translation>النقاط: %lld  ·  %@</translation>
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
        <translation>اضغط Enter للاختيار.</translation>
    </message>
</context>
<context>
    <name>Garden::Sheet</name>
    <message>
        <source>Done</source>
        <translation>تم</translation>
    </message>
</context>
<context>
    <name>HeaderRow</name>
    <message>
        <source>SCORE</source>
        <extracomment>A tiny label above a number; so is the next. In capitals where the script has them.</extracomment>
        <translation>النقاط</translation>
    </message>
    <message>
        <source>PERSONAL BEST</source>
        <translation>أفضل نتيجة لك</translation>
    </message>
    <message>
        <source>FERNWICK</source>
        <extracomment>The name of the game as its wordmark. Stays as it is in every language.</extracomment>
        <translation>FERNWICK</translation>
    </message>
    <message>
        <source>A little room to grow.</source>
        <extracomment>The line under the wordmark: of the garden, and of whoever plays in it.</extracomment>
        <translation>متّسع صغير للنمو.</translation>
    </message>
</context>
<context>
    <name>HighScoresView</name>
    <message>
        <source>Speed</source>
        <extracomment>Read aloud for the choice between the speeds.</extracomment>
        <translation>السرعة</translation>
    </message>
    <message>
        <source>The high scores.</source>
        <translation>أعلى النتائج.</translation>
    </message>
    <message>
        <source>Top 10 for each speed · saved on this Mac</source>
        <translation>أفضل 10 لكل سرعة · محفوظة على جهاز Mac هذا</translation>
    </message>
    <message>
        <source>Top 10 for each speed · saved on this computer</source>
        <translation>أفضل 10 لكل سرعة · محفوظة على هذا الحاسوب</translation>
    </message>
</context>
<context>
    <name>HintRow</name>
    <message>
        <source>High scores</source>
        <translation>أعلى النتائج</translation>
    </message>
    <message>
        <source>Toggle sound effects</source>
        <translation>تشغيل المؤثرات الصوتية أو إيقافها</translation>
    </message>
    <message>
        <source>Pause or resume</source>
        <translation>إيقاف مؤقت أو استئناف</translation>
    </message>
    <message>
        <source>or WASD to move</source>
        <extracomment>Follows the four arrows. WASD stays as it is: the game shows ZQSD instead where keyboards have these letters there.</extracomment>
        <translation>أو WASD للحركة</translation>
    </message>
    <message>
        <source>·   SPACE to pause   ·   R to restart</source>
        <extracomment>Three spaces on each side of a dot, as here. R stays a Latin letter.</extracomment>
        <translation>·   المسافة للإيقاف المؤقت   ·   R للبدء من جديد</translation>
    </message>
</context>
<context>
    <name>KeysView</name>
    <message>
        <source>The keys.</source>
        <translation>المفاتيح.</translation>
    </message>
    <message>
        <source>Move</source>
        <extracomment>What the keys of the game do: short phrases, in the words of the menus.</extracomment>
        <translation>الحركة</translation>
    </message>
    <message>
        <source>Start, pause or resume</source>
        <translation>بدء أو إيقاف مؤقت أو استئناف</translation>
    </message>
    <message>
        <source>Pause, or go back</source>
        <translation>إيقاف مؤقت أو رجوع</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>بدء من جديد</translation>
    </message>
    <message>
        <source>Pause or resume</source>
        <translation>إيقاف مؤقت أو استئناف</translation>
    </message>
    <message>
        <source>High scores</source>
        <translation>أعلى النتائج</translation>
    </message>
    <message>
        <source>Enter or leave full screen</source>
        <translation>دخول ملء الشاشة أو الخروج منه</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>القوائم</translation>
    </message>
    <message>
        <source>Reach a button, press it</source>
        <translation>الانتقال إلى زر والضغط عليه</translation>
    </message>
    <message>
        <source>These keys</source>
        <translation>هذه المفاتيح</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>خروج</translation>
    </message>
</context>
<context>
    <name>MenuCommands</name>
    <message>
        <source>File</source>
        <extracomment>Titles of menus; they and their items are worded as the desktops of the language do.</extracomment>
        <translation>ملف</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>اللعبة</translation>
    </message>
    <message>
        <source>New Game</source>
        <translation>لعبة جديدة</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>خروج</translation>
    </message>
    <message>
        <source>Toggle Full Screen</source>
        <translation>تبديل ملء الشاشة</translation>
    </message>
    <message>
        <source>High Scores</source>
        <translation>أعلى النتائج</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>استئناف</translation>
    </message>
    <message>
        <source>Sound Effects</source>
        <translation>المؤثرات الصوتية</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>مساعدة</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>المفاتيح</translation>
    </message>
    <message>
        <source>About Fernwick</source>
        <translation>حول Fernwick</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Save score</source>
        <translation>حفظ النتيجة</translation>
    </message>
    <message>
        <source>Your name</source>
        <extracomment>Shown in the empty field.</extracomment>
        <translation>اسمك</translation>
    </message>
    <message>
        <source>Player name</source>
        <translation>اسم اللاعب</translation>
    </message>
    <message>
        <source>Skip saving</source>
        <translation>تخطّي الحفظ</translation>
    </message>
    <message>
        <source>Leave your name in the garden.</source>
        <translation>اترك اسمك في الحديقة.</translation>
    </message>
    <message>
        <source>Up to 24 characters · saved on this Mac</source>
        <translation>حتى 24 حرفًا · يُحفظ على جهاز Mac هذا</translation>
    </message>
    <message>
        <source>Up to 24 characters · saved on this computer</source>
        <translation>حتى 24 حرفًا · يُحفظ على هذا الحاسوب</translation>
    </message>
</context>
<context>
    <name>Overlay</name>
    <message>
        <source>PRESS SPACE</source>
        <extracomment>The space bar.</extracomment>
        <translation>اضغط مفتاح المسافة</translation>
    </message>
    <message>
        <source>Fully grown.</source>
        <extracomment>Headlines of an ended run: the snake fills the whole board; it struck something.</extracomment>
        <translation>اكتمل النمو.</translation>
    </message>
    <message>
        <source>A good place to begin again.</source>
        <translation>مكان طيّب لبداية جديدة.</translation>
    </message>
    <message>
        <source>You gathered %lld points. Let&apos;s grow a little further.</source>
        <extracomment>%lld is the score; it has to stay.</extracomment>
        <translation>حصادك من النقاط: %lld. فلننمُ أكثر قليلًا.</translation>
    </message>
    <message>
        <source>Grow again</source>
        <extracomment>A button; so are &quot;Keep growing&quot; and &quot;Let&apos;s grow&quot;. An arrow follows the words.</extracomment>
        <translation>انمُ من جديد</translation>
    </message>
    <message>
        <source>No rush.</source>
        <extracomment>The headline of the pause.</extracomment>
        <translation>على مهل.</translation>
    </message>
    <message>
        <source>Your garden will be here when you&apos;re ready.</source>
        <translation>حديقتك باقية هنا حتى تعود.</translation>
    </message>
    <message>
        <source>Keep growing</source>
        <translation>واصل النمو</translation>
    </message>
    <message>
        <source>Find your flow.</source>
        <extracomment>The headline before the first run.</extracomment>
        <translation>اعثر على إيقاعك.</translation>
    </message>
    <message>
        <source>Gather the fruit. Grow a little longer. Stay curious.</source>
        <translation>اقطف الثمار. انمُ أكثر قليلًا. واحتفظ بفضولك.</translation>
    </message>
    <message>
        <source>Let&apos;s grow</source>
        <translation>هيّا ننمو</translation>
    </message>
</context>
<context>
    <name>Pace</name>
    <message>
        <source>Gentle</source>
        <extracomment>The three speeds, each a short word of its own: slow, as usual, fast.</extracomment>
        <translation>هادئة</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>كلاسيكية</translation>
    </message>
    <message>
        <source>Swift</source>
        <translation>سريعة</translation>
    </message>
</context>
<context>
    <name>QAccessibleActionInterface</name>
    <message>
        <source>Press</source>
        <extracomment>What can be done with a button, and what that means; read aloud.</extracomment>
        <translation>ضغط</translation>
    </message>
    <message>
        <source>Triggers the action</source>
        <translation>ينفّذ الإجراء</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <extracomment>The menu of a text field, worded as the desktops of the language do.</extracomment>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>إعادة</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>قص</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>لصق</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>تحديد الكل</translation>
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
        <translation>المسافة</translation>
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
        <translation>العب مجددًا</translation>
    </message>
    <message>
        <source>SPACE TO PLAY AGAIN</source>
        <extracomment>The space bar.</extracomment>
        <translation>المسافة للعب مجددًا</translation>
    </message>
    <message>
        <source>Score saved · Top 10</source>
        <translation>حُفظت النتيجة · أفضل 10</translation>
    </message>
    <message>
        <source>Top 10</source>
        <translation>أفضل 10</translation>
    </message>
</context>
<context>
    <name>ScoreRows</name>
    <message>
        <source>A fresh start. Be the first on the board.</source>
        <translation>بداية جديدة. ليكن اسمك أول القائمة.</translation>
    </message>
    <message>
        <source>Scores</source>
        <extracomment>Read aloud for the list of scores.</extracomment>
        <translation>النتائج</translation>
    </message>
</context>
<context>
    <name>TitleBand</name>
    <message>
        <source>Maximise</source>
        <extracomment>Tooltips of the window buttons, in the words that desktops use in the language.</extracomment>
        <translation>تكبير</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>تصغير</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
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
        <translation>Sürüm %@</translation>
    </message>
    <message>
        <source>Grown from what others share. Thank you.</source>
        <extracomment>Of the fonts and libraries above, whose makers share them.</extracomment>
        <translation>Başkalarının paylaştıklarından filizlendi. Teşekkürler.</translation>
    </message>
</context>
<context>
    <name>Board</name>
    <message>
        <source>Snake board. Score %lld. Use arrow keys or W A S D to move.</source>
        <extracomment>Read aloud for the picture of the board. %lld is the score; it has to stay.</extracomment>
        <translation>Yılanın oyun alanı. Puan: %lld. Ok tuşları veya W A S D ile hareket et.</translation>
    </message>
</context>
<context>
    <name>ControlRow</name>
    <message>
        <source>Speed</source>
        <translation>Hız</translation>
    </message>
    <message>
        <source>IN THE FLOW</source>
        <extracomment>What the game is doing, in tiny capitals: a run is going on.</extracomment>
        <translation>KENDİ RİTMİNDE</translation>
    </message>
    <message>
        <source>ANOTHER CHANCE TO GROW</source>
        <extracomment>The run is over.</extracomment>
        <translation>BÜYÜMEK İÇİN BİR FIRSAT DAHA</translation>
    </message>
    <message>
        <source>TAKE A BREATH</source>
        <extracomment>The run is paused; and: no run has been started yet, of a classic game in a new garden.</extracomment>
        <translation>BİR NEFES AL</translation>
    </message>
    <message>
        <source>THE CLASSIC, REPLANTED</source>
        <translation>KLASİK, YENİDEN FİLİZLENDİ</translation>
    </message>
</context>
<context>
    <name>FullScreenHint</name>
    <message>
        <source>Press F11 to leave full screen</source>
        <translation>Tam ekrandan çıkmak için F11 tuşuna bas</translation>
    </message>
</context>
<context>
    <name>GameOverView</name>
    <message>
        <source>Fully grown.</source>
        <extracomment>Headlines of an ended run: the snake fills the whole board; it struck something.</extracomment>
        <translation>Tamamen büyüdü.</translation>
    </message>
    <message>
        <source>Game over.</source>
        <translation>Oyun bitti.</translation>
    </message>
    <message>
        <source>%lld POINTS  ·  %@</source>
        <extracomment>%lld is the score, %@ the name of the speed; both have to stay. Two spaces round the dot.</extracomment>
        <translation>%lld PUAN  ·  %@</translation>
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
        <translation>Seçmek için Enter tuşuna bas.</translation>
    </message>
</context>
<context>
    <name>Garden::Sheet</name>
    <message>
        <source>Done</source>
        <translation>Tamam</translation>
    </message>
</context>
<context>
    <name>HeaderRow</name>
    <message>
        <source>SCORE</source>
        <extracomment>A tiny label above a number; so is the next. In capitals where the script has them.</extracomment>
        <translation>PUAN</translation>
    </message>
    <message>
        <source>PERSONAL BEST</source>
        <translation>KİŞİSEL REKOR</translation>
    </message>
    <message>
        <source>FERNWICK</source>
        <extracomment>The name of the game as its wordmark. Stays as it is in every language.</extracomment>
        <translation>FERNWICK</translation>
    </message>
    <message>
        <source>A little room to grow.</source>
        <extracomment>The line under the wordmark: of the garden, and of whoever plays in it.</extracomment>
        <translation>Büyümek için küçük bir yer.</translation>
    </message>
</context>
<context>
    <name>HighScoresView</name>
    <message>
        <source>Speed</source>
        <extracomment>Read aloud for the choice between the speeds.</extracomment>
        <translation>Hız</translation>
    </message>
    <message>
        <source>The high scores.</source>
        <translation>En yüksek puanlar.</translation>
    </message>
    <message>
        <source>Top 10 for each speed · saved on this Mac</source>
        <translation>Her hız için ilk 10 · bu Mac’e kaydedildi</translation>
    </message>
    <message>
        <source>Top 10 for each speed · saved on this computer</source>
        <translation>Her hız için ilk 10 · bu bilgisayara kaydedildi</translation>
    </message>
</context>
<context>
    <name>HintRow</name>
    <message>
        <source>High scores</source>
        <translation>En yüksek puanlar</translation>
    </message>
    <message>
        <source>Toggle sound effects</source>
        <translation>Ses efektlerini aç veya kapat</translation>
    </message>
    <message>
        <source>Pause or resume</source>
        <translation>Duraklat veya sürdür</translation>
    </message>
    <message>
        <source>or WASD to move</source>
        <extracomment>Follows the four arrows. WASD stays as it is: the game shows ZQSD instead where keyboards have these letters there.</extracomment>
        <translation>veya WASD ile hareket</translation>
    </message>
    <message>
        <source>·   SPACE to pause   ·   R to restart</source>
        <extracomment>Three spaces on each side of a dot, as here. R stays a Latin letter.</extracomment>
        <translation>·   Duraklatmak için BOŞLUK   ·   Yeniden başlamak için R</translation>
    </message>
</context>
<context>
    <name>KeysView</name>
    <message>
        <source>The keys.</source>
        <translation>Tuşlar.</translation>
    </message>
    <message>
        <source>Move</source>
        <extracomment>What the keys of the game do: short phrases, in the words of the menus.</extracomment>
        <translation>Hareket et</translation>
    </message>
    <message>
        <source>Start, pause or resume</source>
        <translation>Başlat, duraklat veya sürdür</translation>
    </message>
    <message>
        <source>Pause, or go back</source>
        <translation>Duraklat veya geri dön</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>Yeniden başla</translation>
    </message>
    <message>
        <source>Pause or resume</source>
        <translation>Duraklat veya sürdür</translation>
    </message>
    <message>
        <source>High scores</source>
        <translation>En yüksek puanlar</translation>
    </message>
    <message>
        <source>Enter or leave full screen</source>
        <translation>Tam ekranı aç veya kapat</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>Menüler</translation>
    </message>
    <message>
        <source>Reach a button, press it</source>
        <translation>Düğmeye git ve bas</translation>
    </message>
    <message>
        <source>These keys</source>
        <translation>Bu tuşlar</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Çık</translation>
    </message>
</context>
<context>
    <name>MenuCommands</name>
    <message>
        <source>File</source>
        <extracomment>Titles of menus; they and their items are worded as the desktops of the language do.</extracomment>
        <translation>Dosya</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Oyun</translation>
    </message>
    <message>
        <source>New Game</source>
        <translation>Yeni Oyun</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Çık</translation>
    </message>
    <message>
        <source>Toggle Full Screen</source>
        <translation>Tam Ekranı Aç/Kapat</translation>
    </message>
    <message>
        <source>High Scores</source>
        <translation>En Yüksek Puanlar</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Sürdür</translation>
    </message>
    <message>
        <source>Sound Effects</source>
        <translation>Ses Efektleri</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Duraklat</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Yardım</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tuşlar</translation>
    </message>
    <message>
        <source>About Fernwick</source>
        <translation>Fernwick Hakkında</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Save score</source>
        <translation>Puanı kaydet</translation>
    </message>
    <message>
        <source>Your name</source>
        <extracomment>Shown in the empty field.</extracomment>
        <translation>Adın</translation>
    </message>
    <message>
        <source>Player name</source>
        <translation>Oyuncu adı</translation>
    </message>
    <message>
        <source>Skip saving</source>
        <translation>Kaydetmeden geç</translation>
    </message>
    <message>
        <source>Leave your name in the garden.</source>
        <translation>Adını bahçeye bırak.</translation>
    </message>
    <message>
        <source>Up to 24 characters · saved on this Mac</source>
        <translation>En fazla 24 karakter · bu Mac’e kaydedilir</translation>
    </message>
    <message>
        <source>Up to 24 characters · saved on this computer</source>
        <translation>En fazla 24 karakter · bu bilgisayara kaydedilir</translation>
    </message>
</context>
<context>
    <name>Overlay</name>
    <message>
        <source>PRESS SPACE</source>
        <extracomment>The space bar.</extracomment>
        <translation>BOŞLUK TUŞUNA BAS</translation>
    </message>
    <message>
        <source>Fully grown.</source>
        <extracomment>Headlines of an ended run: the snake fills the whole board; it struck something.</extracomment>
        <translation>Tamamen büyüdü.</translation>
    </message>
    <message>
        <source>A good place to begin again.</source>
        <translation>Yeniden başlamak için güzel bir yer.</translation>
    </message>
    <message>
        <source>You gathered %lld points. Let&apos;s grow a little further.</source>
        <extracomment>%lld is the score; it has to stay.</extracomment>
        <translation>%lld puan topladın. Biraz daha büyüyelim.</translation>
    </message>
    <message>
        <source>Grow again</source>
        <extracomment>A button; so are &quot;Keep growing&quot; and &quot;Let&apos;s grow&quot;. An arrow follows the words.</extracomment>
        <translation>Yeniden büyü</translation>
    </message>
    <message>
        <source>No rush.</source>
        <extracomment>The headline of the pause.</extracomment>
        <translation>Acele yok.</translation>
    </message>
    <message>
        <source>Your garden will be here when you&apos;re ready.</source>
        <translation>Hazır olduğunda bahçen burada olacak.</translation>
    </message>
    <message>
        <source>Keep growing</source>
        <translation>Büyümeye devam</translation>
    </message>
    <message>
        <source>Find your flow.</source>
        <extracomment>The headline before the first run.</extracomment>
        <translation>Ritmini bul.</translation>
    </message>
    <message>
        <source>Gather the fruit. Grow a little longer. Stay curious.</source>
        <translation>Meyveleri topla. Biraz daha büyü. Merakını koru.</translation>
    </message>
    <message>
        <source>Let&apos;s grow</source>
        <translation>Haydi büyüyelim</translation>
    </message>
</context>
<context>
    <name>Pace</name>
    <message>
        <source>Gentle</source>
        <extracomment>The three speeds, each a short word of its own: slow, as usual, fast.</extracomment>
        <translation>Sakin</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>Klasik</translation>
    </message>
    <message>
        <source>Swift</source>
        <translation>Çevik</translation>
    </message>
</context>
<context>
    <name>QAccessibleActionInterface</name>
    <message>
        <source>Press</source>
        <extracomment>What can be done with a button, and what that means; read aloud.</extracomment>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Triggers the action</source>
        <translation>Eylemi gerçekleştirir</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <extracomment>The menu of a text field, worded as the desktops of the language do.</extracomment>
        <translation>&amp;Geri Al</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Yinele</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Ke&amp;s</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>K&amp;opyala</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Ya&amp;pıştır</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tümünü Seç</translation>
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
        <translation>Boşluk</translation>
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
        <translation>Yeniden oyna</translation>
    </message>
    <message>
        <source>SPACE TO PLAY AGAIN</source>
        <extracomment>The space bar.</extracomment>
        <translation>YENİDEN OYNAMAK İÇİN BOŞLUK</translation>
    </message>
    <message>
        <source>Score saved · Top 10</source>
        <translation>Puan kaydedildi · İlk 10</translation>
    </message>
    <message>
        <source>Top 10</source>
        <translation>İlk 10</translation>
    </message>
</context>
<context>
    <name>ScoreRows</name>
    <message>
        <source>A fresh start. Be the first on the board.</source>
        <translation>Yepyeni bir başlangıç. Listedeki ilk ad seninki olsun.</translation>
    </message>
    <message>
        <source>Scores</source>
        <extracomment>Read aloud for the list of scores.</extracomment>
        <translation>Puanlar</translation>
    </message>
</context>
<context>
    <name>TitleBand</name>
    <message>
        <source>Maximise</source>
        <extracomment>Tooltips of the window buttons, in the words that desktops use in the language.</extracomment>
        <translation>Büyüt</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>Küçült</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk" sourcelanguage="en">
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
        <translation>Версія %@</translation>
    </message>
    <message>
        <source>Grown from what others share. Thank you.</source>
        <extracomment>Of the fonts and libraries above, whose makers share them.</extracomment>
        <translation>Виросло з того, чим діляться інші. Дякуємо.</translation>
    </message>
</context>
<context>
    <name>Board</name>
    <message>
        <source>Snake board. Score %lld. Use arrow keys or W A S D to move.</source>
        <extracomment>Read aloud for the picture of the board. %lld is the score; it has to stay.</extracomment>
        <translation>Поле змійки. Рахунок: %lld. Рухайся стрілками або клавішами W A S D.</translation>
    </message>
</context>
<context>
    <name>ControlRow</name>
    <message>
        <source>Speed</source>
        <translation>Темп</translation>
    </message>
    <message>
        <source>IN THE FLOW</source>
        <extracomment>What the game is doing, in tiny capitals: a run is going on.</extracomment>
        <translation>У СВОЄМУ РИТМІ</translation>
    </message>
    <message>
        <source>ANOTHER CHANCE TO GROW</source>
        <extracomment>The run is over.</extracomment>
        <translation>ЩЕ ОДНА НАГОДА ВИРОСТИ</translation>
    </message>
    <message>
        <source>TAKE A BREATH</source>
        <extracomment>The run is paused; and: no run has been started yet, of a classic game in a new garden.</extracomment>
        <translation>ПЕРЕВЕДИ ПОДИХ</translation>
    </message>
    <message>
        <source>THE CLASSIC, REPLANTED</source>
        <translation>КЛАСИКА, ПОСАДЖЕНА ЗАНОВО</translation>
    </message>
</context>
<context>
    <name>FullScreenHint</name>
    <message>
        <source>Press F11 to leave full screen</source>
        <translation>Натисни F11, щоб вийти з повноекранного режиму</translation>
    </message>
</context>
<context>
    <name>GameOverView</name>
    <message>
        <source>Fully grown.</source>
        <extracomment>Headlines of an ended run: the snake fills the whole board; it struck something.</extracomment>
        <translation>Виросла сповна.</translation>
    </message>
    <message>
        <source>Game over.</source>
        <translation>Гру завершено.</translation>
    </message>
    <message>
        <source>%lld POINTS  ·  %@</source>
        <extracomment>%lld is the score, %@ the name of the speed; both have to stay. Two spaces round the dot.</extracomment>
        <translation>%lld ОЧОК  ·  %@</translation>
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
        <translation>Натисни Enter, щоб вибрати.</translation>
    </message>
</context>
<context>
    <name>Garden::Sheet</name>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
</context>
<context>
    <name>HeaderRow</name>
    <message>
        <source>SCORE</source>
        <extracomment>A tiny label above a number; so is the next. In capitals where the script has them.</extracomment>
        <translation>РАХУНОК</translation>
    </message>
    <message>
        <source>PERSONAL BEST</source>
        <translation>ОСОБИСТИЙ РЕКОРД</translation>
    </message>
    <message>
        <source>FERNWICK</source>
        <extracomment>The name of the game as its wordmark. Stays as it is in every language.</extracomment>
        <translation>FERNWICK</translation>
    </message>
    <message>
        <source>A little room to grow.</source>
        <extracomment>The line under the wordmark: of the garden, and of whoever plays in it.</extracomment>
        <translation>Трохи місця, щоб рости.</translation>
    </message>
</context>
<context>
    <name>HighScoresView</name>
    <message>
        <source>Speed</source>
        <extracomment>Read aloud for the choice between the speeds.</extracomment>
        <translation>Темп</translation>
    </message>
    <message>
        <source>The high scores.</source>
        <translation>Найкращі результати.</translation>
    </message>
    <message>
        <source>Top 10 for each speed · saved on this Mac</source>
        <translation>Топ-10 для кожного темпу · збережено на цьому Mac</translation>
    </message>
    <message>
        <source>Top 10 for each speed · saved on this computer</source>
        <translation>Топ-10 для кожного темпу · збережено на цьому комп’ютері</translation>
    </message>
</context>
<context>
    <name>HintRow</name>
    <message>
        <source>High scores</source>
        <translation>Найкращі результати</translation>
    </message>
    <message>
        <source>Toggle sound effects</source>
        <translation>Увімкнути або вимкнути звукові ефекти</translation>
    </message>
    <message>
        <source>Pause or resume</source>
        <translation>Призупинити або продовжити</translation>
    </message>
    <message>
        <source>or WASD to move</source>
        <extracomment>Follows the four arrows. WASD stays as it is: the game shows ZQSD instead where keyboards have these letters there.</extracomment>
        <translation>або WASD, щоб рухатися</translation>
    </message>
    <message>
        <source>·   SPACE to pause   ·   R to restart</source>
        <extracomment>Three spaces on each side of a dot, as here. R stays a Latin letter.</extracomment>
        <translation>·   ПРОБІЛ для паузи   ·   R, щоб почати знову</translation>
    </message>
</context>
<context>
    <name>KeysView</name>
    <message>
        <source>The keys.</source>
        <translation>Клавіші.</translation>
    </message>
    <message>
        <source>Move</source>
        <extracomment>What the keys of the game do: short phrases, in the words of the menus.</extracomment>
        <translation>Рухатися</translation>
    </message>
    <message>
        <source>Start, pause or resume</source>
        <translation>Почати, призупинити або продовжити</translation>
    </message>
    <message>
        <source>Pause, or go back</source>
        <translation>Призупинити або повернутися</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>Почати знову</translation>
    </message>
    <message>
        <source>Pause or resume</source>
        <translation>Призупинити або продовжити</translation>
    </message>
    <message>
        <source>High scores</source>
        <translation>Найкращі результати</translation>
    </message>
    <message>
        <source>Enter or leave full screen</source>
        <translation>Повноекранний режим</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>Меню</translation>
    </message>
    <message>
        <source>Reach a button, press it</source>
        <translation>Перейти до кнопки, натиснути її</translation>
    </message>
    <message>
        <source>These keys</source>
        <translation>Ці клавіші</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Вийти</translation>
    </message>
</context>
<context>
    <name>MenuCommands</name>
    <message>
        <source>File</source>
        <extracomment>Titles of menus; they and their items are worded as the desktops of the language do.</extracomment>
        <translation>Файл</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Гра</translation>
    </message>
    <message>
        <source>New Game</source>
        <translation>Нова гра</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Вийти</translation>
    </message>
    <message>
        <source>Toggle Full Screen</source>
        <translation>Перемкнути повноекранний режим</translation>
    </message>
    <message>
        <source>High Scores</source>
        <translation>Найкращі результати</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Продовжити</translation>
    </message>
    <message>
        <source>Sound Effects</source>
        <translation>Звукові ефекти</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Призупинити</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Довідка</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Клавіші</translation>
    </message>
    <message>
        <source>About Fernwick</source>
        <translation>Про Fernwick</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Save score</source>
        <translation>Зберегти результат</translation>
    </message>
    <message>
        <source>Your name</source>
        <extracomment>Shown in the empty field.</extracomment>
        <translation>Твоє ім’я</translation>
    </message>
    <message>
        <source>Player name</source>
        <translation>Ім’я гравця</translation>
    </message>
    <message>
        <source>Skip saving</source>
        <translation>Не зберігати</translation>
    </message>
    <message>
        <source>Leave your name in the garden.</source>
        <translation>Залиш своє ім’я в саду.</translation>
    </message>
    <message>
        <source>Up to 24 characters · saved on this Mac</source>
        <translation>До 24 символів · збережеться на цьому Mac</translation>
    </message>
    <message>
        <source>Up to 24 characters · saved on this computer</source>
        <translation>До 24 символів · збережеться на цьому комп’ютері</translation>
    </message>
</context>
<context>
    <name>Overlay</name>
    <message>
        <source>PRESS SPACE</source>
        <extracomment>The space bar.</extracomment>
        <translation>НАТИСНИ ПРОБІЛ</translation>
    </message>
    <message>
        <source>Fully grown.</source>
        <extracomment>Headlines of an ended run: the snake fills the whole board; it struck something.</extracomment>
        <translation>Виросла сповна.</translation>
    </message>
    <message>
        <source>A good place to begin again.</source>
        <translation>Гарне місце, щоб почати знову.</translation>
    </message>
    <message>
        <source>You gathered %lld points. Let&apos;s grow a little further.</source>
        <extracomment>%lld is the score; it has to stay.</extracomment>
        <translation>Зібрано %lld очок. Підростімо ще трохи.</translation>
    </message>
    <message>
        <source>Grow again</source>
        <extracomment>A button; so are &quot;Keep growing&quot; and &quot;Let&apos;s grow&quot;. An arrow follows the words.</extracomment>
        <translation>Рости знову</translation>
    </message>
    <message>
        <source>No rush.</source>
        <extracomment>The headline of the pause.</extracomment>
        <translation>Не поспішай.</translation>
    </message>
    <message>
        <source>Your garden will be here when you&apos;re ready.</source>
        <translation>Твій сад чекатиме, скільки треба.</translation>
    </message>
    <message>
        <source>Keep growing</source>
        <translation>Рости далі</translation>
    </message>
    <message>
        <source>Find your flow.</source>
        <extracomment>The headline before the first run.</extracomment>
        <translation>Знайди свій ритм.</translation>
    </message>
    <message>
        <source>Gather the fruit. Grow a little longer. Stay curious.</source>
        <translation>Збирай плоди. Рости ще трохи. Не втрачай цікавості.</translation>
    </message>
    <message>
        <source>Let&apos;s grow</source>
        <translation>Ростімо</translation>
    </message>
</context>
<context>
    <name>Pace</name>
    <message>
        <source>Gentle</source>
        <extracomment>The three speeds, each a short word of its own: slow, as usual, fast.</extracomment>
        <translation>Лагідний</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>Класичний</translation>
    </message>
    <message>
        <source>Swift</source>
        <translation>Жвавий</translation>
    </message>
</context>
<context>
    <name>QAccessibleActionInterface</name>
    <message>
        <source>Press</source>
        <extracomment>What can be done with a button, and what that means; read aloud.</extracomment>
        <translation>Натиснути</translation>
    </message>
    <message>
        <source>Triggers the action</source>
        <translation>Виконує дію</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <extracomment>The menu of a text field, worded as the desktops of the language do.</extracomment>
        <translation>&amp;Скасувати</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Повторити</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Ви&amp;різати</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Копіювати</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Вставити</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Вилучити</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Вибрати все</translation>
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
        <translation>Пробіл</translation>
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
        <translation>Зіграти ще</translation>
    </message>
    <message>
        <source>SPACE TO PLAY AGAIN</source>
        <extracomment>The space bar.</extracomment>
        <translation>ПРОБІЛ, ЩОБ ЗІГРАТИ ЩЕ</translation>
    </message>
    <message>
        <source>Score saved · Top 10</source>
        <translation>Результат збережено · Топ-10</translation>
    </message>
    <message>
        <source>Top 10</source>
        <translation>Топ-10</translation>
    </message>
</context>
<context>
    <name>ScoreRows</name>
    <message>
        <source>A fresh start. Be the first on the board.</source>
        <translation>Новий початок. Перше місце чекає на тебе.</translation>
    </message>
    <message>
        <source>Scores</source>
        <extracomment>Read aloud for the list of scores.</extracomment>
        <translation>Результати</translation>
    </message>
</context>
<context>
    <name>TitleBand</name>
    <message>
        <source>Maximise</source>
        <extracomment>Tooltips of the window buttons, in the words that desktops use in the language.</extracomment>
        <translation>Розгорнути</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>Згорнути</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрити</translation>
    </message>
</context>
</TS>

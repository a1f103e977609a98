<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
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
        <translation>版本 %@</translation>
    </message>
    <message>
        <source>Grown from what others share. Thank you.</source>
        <extracomment>Of the fonts and libraries above, whose makers share them.</extracomment>
        <translation>在众人的分享中长成。谢谢大家。</translation>
    </message>
</context>
<context>
    <name>Board</name>
    <message>
        <source>Snake board. Score %lld. Use arrow keys or W A S D to move.</source>
        <extracomment>Read aloud for the picture of the board. %lld is the score; it has to stay.</extracomment>
        <translation>贪吃蛇游戏区。得分 %lld。用方向键或 W A S D 移动。</translation>
    </message>
</context>
<context>
    <name>ControlRow</name>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>IN THE FLOW</source>
        <extracomment>What the game is doing, in tiny capitals: a run is going on.</extracomment>
        <translation>行云流水</translation>
    </message>
    <message>
        <source>ANOTHER CHANCE TO GROW</source>
        <extracomment>The run is over.</extracomment>
        <translation>又一次生长的机会</translation>
    </message>
    <message>
        <source>TAKE A BREATH</source>
        <extracomment>The run is paused; and: no run has been started yet, of a classic game in a new garden.</extracomment>
        <translation>歇一口气</translation>
    </message>
    <message>
        <source>THE CLASSIC, REPLANTED</source>
        <translation>经典，重新栽种</translation>
    </message>
</context>
<context>
    <name>FullScreenHint</name>
    <message>
        <source>Press F11 to leave full screen</source>
        <translation>按 F11 退出全屏</translation>
    </message>
</context>
<context>
    <name>GameOverView</name>
    <message>
        <source>Fully grown.</source>
        <extracomment>Headlines of an ended run: the snake fills the whole board; it struck something.</extracomment>
        <translation>已然长成。</translation>
    </message>
    <message>
        <source>Game over.</source>
        <translation>游戏结束。</translation>
    </message>
    <message>
        <source>%lld POINTS  ·  %@</source>
        <extracomment>%lld is the score, %@ the name of the speed; both have to stay. Two spaces round the dot.</extracomment>
        <translation>%lld 分  ·  %@</translation>
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
        <translation>按回车键选择。</translation>
    </message>
</context>
<context>
    <name>Garden::Sheet</name>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
</context>
<context>
    <name>HeaderRow</name>
    <message>
        <source>SCORE</source>
        <extracomment>A tiny label above a number; so is the next. In capitals where the script has them.</extracomment>
        <translation>得分</translation>
    </message>
    <message>
        <source>PERSONAL BEST</source>
        <translation>个人最佳</translation>
    </message>
    <message>
        <source>FERNWICK</source>
        <extracomment>The name of the game as its wordmark. Stays as it is in every language.</extracomment>
        <translation>FERNWICK</translation>
    </message>
    <message>
        <source>A little room to grow.</source>
        <extracomment>The line under the wordmark: of the garden, and of whoever plays in it.</extracomment>
        <translation>一方小天地，慢慢生长。</translation>
    </message>
</context>
<context>
    <name>HighScoresView</name>
    <message>
        <source>Speed</source>
        <extracomment>Read aloud for the choice between the speeds.</extracomment>
        <translation>速度</translation>
    </message>
    <message>
        <source>The high scores.</source>
        <translation>高分榜</translation>
    </message>
    <message>
        <source>Top 10 for each speed · saved on this Mac</source>
        <translation>每种速度的前 10 名 · 保存在这台 Mac 上</translation>
    </message>
    <message>
        <source>Top 10 for each speed · saved on this computer</source>
        <translation>每种速度的前 10 名 · 保存在这台电脑上</translation>
    </message>
</context>
<context>
    <name>HintRow</name>
    <message>
        <source>High scores</source>
        <translation>高分榜</translation>
    </message>
    <message>
        <source>Toggle sound effects</source>
        <translation>打开或关闭音效</translation>
    </message>
    <message>
        <source>Pause or resume</source>
        <translation>暂停或继续</translation>
    </message>
    <message>
        <source>or WASD to move</source>
        <extracomment>Follows the four arrows. WASD stays as it is: the game shows ZQSD instead where keyboards have these letters there.</extracomment>
        <translation>或 WASD 移动</translation>
    </message>
    <message>
        <source>·   SPACE to pause   ·   R to restart</source>
        <extracomment>Three spaces on each side of a dot, as here. R stays a Latin letter.</extracomment>
        <translation>·   空格键暂停   ·   R 重新开始</translation>
    </message>
</context>
<context>
    <name>KeysView</name>
    <message>
        <source>The keys.</source>
        <translation>按键一览</translation>
    </message>
    <message>
        <source>Move</source>
        <extracomment>What the keys of the game do: short phrases, in the words of the menus.</extracomment>
        <translation>移动</translation>
    </message>
    <message>
        <source>Start, pause or resume</source>
        <translation>开始、暂停或继续</translation>
    </message>
    <message>
        <source>Pause, or go back</source>
        <translation>暂停或返回</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>重新开始</translation>
    </message>
    <message>
        <source>Pause or resume</source>
        <translation>暂停或继续</translation>
    </message>
    <message>
        <source>High scores</source>
        <translation>高分榜</translation>
    </message>
    <message>
        <source>Enter or leave full screen</source>
        <translation>进入或退出全屏</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Reach a button, press it</source>
        <translation>移到按钮并按下</translation>
    </message>
    <message>
        <source>These keys</source>
        <translation>按键一览</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
</context>
<context>
    <name>MenuCommands</name>
    <message>
        <source>File</source>
        <extracomment>Titles of menus; they and their items are worded as the desktops of the language do.</extracomment>
        <translation>文件</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>游戏</translation>
    </message>
    <message>
        <source>New Game</source>
        <translation>新游戏</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Toggle Full Screen</source>
        <translation>切换全屏</translation>
    </message>
    <message>
        <source>High Scores</source>
        <translation>高分榜</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Sound Effects</source>
        <translation>音效</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>按键一览</translation>
    </message>
    <message>
        <source>About Fernwick</source>
        <translation>关于 Fernwick</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Save score</source>
        <translation>保存得分</translation>
    </message>
    <message>
        <source>Your name</source>
        <extracomment>Shown in the empty field.</extracomment>
        <translation>你的名字</translation>
    </message>
    <message>
        <source>Player name</source>
        <translation>玩家名字</translation>
    </message>
    <message>
        <source>Skip saving</source>
        <translation>不保存</translation>
    </message>
    <message>
        <source>Leave your name in the garden.</source>
        <translation>在花园里留下你的名字。</translation>
    </message>
    <message>
        <source>Up to 24 characters · saved on this Mac</source>
        <translation>最多 24 个字符 · 保存在这台 Mac 上</translation>
    </message>
    <message>
        <source>Up to 24 characters · saved on this computer</source>
        <translation>最多 24 个字符 · 保存在这台电脑上</translation>
    </message>
</context>
<context>
    <name>Overlay</name>
    <message>
        <source>PRESS SPACE</source>
        <extracomment>The space bar.</extracomment>
        <translation>按空格键</translation>
    </message>
    <message>
        <source>Fully grown.</source>
        <extracomment>Headlines of an ended run: the snake fills the whole board; it struck something.</extracomment>
        <translation>已然长成。</translation>
    </message>
    <message>
        <source>A good place to begin again.</source>
        <translation>从这里，再出发。</translation>
    </message>
    <message>
        <source>You gathered %lld points. Let&apos;s grow a little further.</source>
        <extracomment>%lld is the score; it has to stay.</extracomment>
        <translation>你收获了 %lld 分。再长一点吧。</translation>
    </message>
    <message>
        <source>Grow again</source>
        <extracomment>A button; so are &quot;Keep growing&quot; and &quot;Let&apos;s grow&quot;. An arrow follows the words.</extracomment>
        <translation>再次生长</translation>
    </message>
    <message>
        <source>No rush.</source>
        <extracomment>The headline of the pause.</extracomment>
        <translation>不必着急。</translation>
    </message>
    <message>
        <source>Your garden will be here when you&apos;re ready.</source>
        <translation>花园会在这里，等你回来。</translation>
    </message>
    <message>
        <source>Keep growing</source>
        <translation>继续生长</translation>
    </message>
    <message>
        <source>Find your flow.</source>
        <extracomment>The headline before the first run.</extracomment>
        <translation>找到你的节奏。</translation>
    </message>
    <message>
        <source>Gather the fruit. Grow a little longer. Stay curious.</source>
        <translation>采撷果实，再长一点，保持好奇。</translation>
    </message>
    <message>
        <source>Let&apos;s grow</source>
        <translation>开始生长</translation>
    </message>
</context>
<context>
    <name>Pace</name>
    <message>
        <source>Gentle</source>
        <extracomment>The three speeds, each a short word of its own: slow, as usual, fast.</extracomment>
        <translation>轻缓</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>经典</translation>
    </message>
    <message>
        <source>Swift</source>
        <translation>迅捷</translation>
    </message>
</context>
<context>
    <name>QAccessibleActionInterface</name>
    <message>
        <source>Press</source>
        <extracomment>What can be done with a button, and what that means; read aloud.</extracomment>
        <translation>按下</translation>
    </message>
    <message>
        <source>Triggers the action</source>
        <translation>执行操作</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <extracomment>The menu of a text field, worded as the desktops of the language do.</extracomment>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪切(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
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
        <translation>空格</translation>
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
        <translation>回车</translation>
    </message>
</context>
<context>
    <name>SavedBoard</name>
    <message>
        <source>Play again</source>
        <translation>再玩一次</translation>
    </message>
    <message>
        <source>SPACE TO PLAY AGAIN</source>
        <extracomment>The space bar.</extracomment>
        <translation>按空格键再玩一次</translation>
    </message>
    <message>
        <source>Score saved · Top 10</source>
        <translation>得分已保存 · 前 10 名</translation>
    </message>
    <message>
        <source>Top 10</source>
        <translation>前 10 名</translation>
    </message>
</context>
<context>
    <name>ScoreRows</name>
    <message>
        <source>A fresh start. Be the first on the board.</source>
        <translation>崭新的开始。来留下第一个名字。</translation>
    </message>
    <message>
        <source>Scores</source>
        <extracomment>Read aloud for the list of scores.</extracomment>
        <translation>得分列表</translation>
    </message>
</context>
<context>
    <name>TitleBand</name>
    <message>
        <source>Maximise</source>
        <extracomment>Tooltips of the window buttons, in the words that desktops use in the language.</extracomment>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
</TS>

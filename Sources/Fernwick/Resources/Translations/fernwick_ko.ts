<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
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
        <translation>버전 %@</translation>
    </message>
    <message>
        <source>Grown from what others share. Thank you.</source>
        <extracomment>Of the fonts and libraries above, whose makers share them.</extracomment>
        <translation>많은 이들의 나눔으로 자랐어요. 고마워요.</translation>
    </message>
</context>
<context>
    <name>Board</name>
    <message>
        <source>Snake board. Score %lld. Use arrow keys or W A S D to move.</source>
        <extracomment>Read aloud for the picture of the board. %lld is the score; it has to stay.</extracomment>
        <translation>스네이크 보드. 점수 %lld. 화살표 키나 W A S D로 움직이세요.</translation>
    </message>
</context>
<context>
    <name>ControlRow</name>
    <message>
        <source>Speed</source>
        <translation>속도</translation>
    </message>
    <message>
        <source>IN THE FLOW</source>
        <extracomment>What the game is doing, in tiny capitals: a run is going on.</extracomment>
        <translation>흐름을 타는 중</translation>
    </message>
    <message>
        <source>ANOTHER CHANCE TO GROW</source>
        <extracomment>The run is over.</extracomment>
        <translation>다시 자랄 기회</translation>
    </message>
    <message>
        <source>TAKE A BREATH</source>
        <extracomment>The run is paused; and: no run has been started yet, of a classic game in a new garden.</extracomment>
        <translation>숨 고르기</translation>
    </message>
    <message>
        <source>THE CLASSIC, REPLANTED</source>
        <translation>새로 심은 고전</translation>
    </message>
</context>
<context>
    <name>FullScreenHint</name>
    <message>
        <source>Press F11 to leave full screen</source>
        <translation>F11 키를 누르면 전체 화면에서 나가요</translation>
    </message>
</context>
<context>
    <name>GameOverView</name>
    <message>
        <source>Fully grown.</source>
        <extracomment>Headlines of an ended run: the snake fills the whole board; it struck something.</extracomment>
        <translation>다 자랐어요.</translation>
    </message>
    <message>
        <source>Game over.</source>
        <translation>게임이 끝났어요.</translation>
    </message>
    <message>
        <source>%lld POINTS  ·  %@</source>
        <extracomment>%lld is the score, %@ the name of the speed; both have to stay. Two spaces round the dot.</extracomment>
        <translation>%lld점  ·  %@</translation>
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
        <translation>선택하려면 Enter 키를 누르세요.</translation>
    </message>
</context>
<context>
    <name>Garden::Sheet</name>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
</context>
<context>
    <name>HeaderRow</name>
    <message>
        <source>SCORE</source>
        <extracomment>A tiny label above a number; so is the next. In capitals where the script has them.</extracomment>
        <translation>점수</translation>
    </message>
    <message>
        <source>PERSONAL BEST</source>
        <translation>개인 최고 기록</translation>
    </message>
    <message>
        <source>FERNWICK</source>
        <extracomment>The name of the game as its wordmark. Stays as it is in every language.</extracomment>
        <translation>FERNWICK</translation>
    </message>
    <message>
        <source>A little room to grow.</source>
        <extracomment>The line under the wordmark: of the garden, and of whoever plays in it.</extracomment>
        <translation>자라나기 좋은 작은 자리.</translation>
    </message>
</context>
<context>
    <name>HighScoresView</name>
    <message>
        <source>Speed</source>
        <extracomment>Read aloud for the choice between the speeds.</extracomment>
        <translation>속도</translation>
    </message>
    <message>
        <source>The high scores.</source>
        <translation>최고 점수 기록</translation>
    </message>
    <message>
        <source>Top 10 for each speed · saved on this Mac</source>
        <translation>속도별 상위 10위 · 이 Mac에 저장됨</translation>
    </message>
    <message>
        <source>Top 10 for each speed · saved on this computer</source>
        <translation>속도별 상위 10위 · 이 컴퓨터에 저장됨</translation>
    </message>
</context>
<context>
    <name>HintRow</name>
    <message>
        <source>High scores</source>
        <translation>최고 점수</translation>
    </message>
    <message>
        <source>Toggle sound effects</source>
        <translation>효과음 켜기/끄기</translation>
    </message>
    <message>
        <source>Pause or resume</source>
        <translation>일시 정지/계속</translation>
    </message>
    <message>
        <source>or WASD to move</source>
        <extracomment>Follows the four arrows. WASD stays as it is: the game shows ZQSD instead where keyboards have these letters there.</extracomment>
        <translation>또는 WASD로 이동</translation>
    </message>
    <message>
        <source>·   SPACE to pause   ·   R to restart</source>
        <extracomment>Three spaces on each side of a dot, as here. R stays a Latin letter.</extracomment>
        <translation>·   스페이스바로 일시 정지   ·   R로 다시 시작</translation>
    </message>
</context>
<context>
    <name>KeysView</name>
    <message>
        <source>The keys.</source>
        <translation>키 안내</translation>
    </message>
    <message>
        <source>Move</source>
        <extracomment>What the keys of the game do: short phrases, in the words of the menus.</extracomment>
        <translation>이동</translation>
    </message>
    <message>
        <source>Start, pause or resume</source>
        <translation>시작/일시 정지/계속</translation>
    </message>
    <message>
        <source>Pause, or go back</source>
        <translation>일시 정지/뒤로</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>다시 시작</translation>
    </message>
    <message>
        <source>Pause or resume</source>
        <translation>일시 정지/계속</translation>
    </message>
    <message>
        <source>High scores</source>
        <translation>최고 점수</translation>
    </message>
    <message>
        <source>Enter or leave full screen</source>
        <translation>전체 화면 켜기/끄기</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>메뉴</translation>
    </message>
    <message>
        <source>Reach a button, press it</source>
        <translation>버튼으로 이동/누르기</translation>
    </message>
    <message>
        <source>These keys</source>
        <translation>이 키 안내</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>끝내기</translation>
    </message>
</context>
<context>
    <name>MenuCommands</name>
    <message>
        <source>File</source>
        <extracomment>Titles of menus; they and their items are worded as the desktops of the language do.</extracomment>
        <translation>파일</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>게임</translation>
    </message>
    <message>
        <source>New Game</source>
        <translation>새 게임</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>끝내기</translation>
    </message>
    <message>
        <source>Toggle Full Screen</source>
        <translation>전체 화면 전환</translation>
    </message>
    <message>
        <source>High Scores</source>
        <translation>최고 점수</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>계속</translation>
    </message>
    <message>
        <source>Sound Effects</source>
        <translation>효과음</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>일시 정지</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>키 안내</translation>
    </message>
    <message>
        <source>About Fernwick</source>
        <translation>Fernwick 정보</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Save score</source>
        <translation>점수 저장</translation>
    </message>
    <message>
        <source>Your name</source>
        <extracomment>Shown in the empty field.</extracomment>
        <translation>이름</translation>
    </message>
    <message>
        <source>Player name</source>
        <translation>플레이어 이름</translation>
    </message>
    <message>
        <source>Skip saving</source>
        <translation>저장하지 않기</translation>
    </message>
    <message>
        <source>Leave your name in the garden.</source>
        <translation>정원에 이름을 남겨 보세요.</translation>
    </message>
    <message>
        <source>Up to 24 characters · saved on this Mac</source>
        <translation>최대 24자 · 이 Mac에 저장</translation>
    </message>
    <message>
        <source>Up to 24 characters · saved on this computer</source>
        <translation>최대 24자 · 이 컴퓨터에 저장</translation>
    </message>
</context>
<context>
    <name>Overlay</name>
    <message>
        <source>PRESS SPACE</source>
        <extracomment>The space bar.</extracomment>
        <translation>스페이스바를 누르세요</translation>
    </message>
    <message>
        <source>Fully grown.</source>
        <extracomment>Headlines of an ended run: the snake fills the whole board; it struck something.</extracomment>
        <translation>다 자랐어요.</translation>
    </message>
    <message>
        <source>A good place to begin again.</source>
        <translation>다시 시작하기 좋은 곳.</translation>
    </message>
    <message>
        <source>You gathered %lld points. Let&apos;s grow a little further.</source>
        <extracomment>%lld is the score; it has to stay.</extracomment>
        <translation>%lld점을 모았어요. 조금 더 자라 볼까요?</translation>
    </message>
    <message>
        <source>Grow again</source>
        <extracomment>A button; so are &quot;Keep growing&quot; and &quot;Let&apos;s grow&quot;. An arrow follows the words.</extracomment>
        <translation>다시 자라기</translation>
    </message>
    <message>
        <source>No rush.</source>
        <extracomment>The headline of the pause.</extracomment>
        <translation>서두르지 않아도 돼요.</translation>
    </message>
    <message>
        <source>Your garden will be here when you&apos;re ready.</source>
        <translation>정원은 언제나 여기서 기다리고 있을 거예요.</translation>
    </message>
    <message>
        <source>Keep growing</source>
        <translation>계속 자라기</translation>
    </message>
    <message>
        <source>Find your flow.</source>
        <extracomment>The headline before the first run.</extracomment>
        <translation>나만의 리듬을 찾아요.</translation>
    </message>
    <message>
        <source>Gather the fruit. Grow a little longer. Stay curious.</source>
        <translation>열매를 모으고, 조금 더 길게. 호기심은 그대로.</translation>
    </message>
    <message>
        <source>Let&apos;s grow</source>
        <translation>자라 볼까요?</translation>
    </message>
</context>
<context>
    <name>Pace</name>
    <message>
        <source>Gentle</source>
        <extracomment>The three speeds, each a short word of its own: slow, as usual, fast.</extracomment>
        <translation>느긋하게</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>클래식</translation>
    </message>
    <message>
        <source>Swift</source>
        <translation>빠르게</translation>
    </message>
</context>
<context>
    <name>QAccessibleActionInterface</name>
    <message>
        <source>Press</source>
        <extracomment>What can be done with a button, and what that means; read aloud.</extracomment>
        <translation>누르기</translation>
    </message>
    <message>
        <source>Triggers the action</source>
        <translation>동작을 실행합니다</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <extracomment>The menu of a text field, worded as the desktops of the language do.</extracomment>
        <translation>실행 취소(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>다시 실행(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>잘라내기(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>복사(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>붙여넣기(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>모두 선택</translation>
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
        <translation>스페이스바</translation>
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
        <translation>다시 하기</translation>
    </message>
    <message>
        <source>SPACE TO PLAY AGAIN</source>
        <extracomment>The space bar.</extracomment>
        <translation>스페이스바로 다시 하기</translation>
    </message>
    <message>
        <source>Score saved · Top 10</source>
        <translation>점수 저장됨 · 상위 10위</translation>
    </message>
    <message>
        <source>Top 10</source>
        <translation>상위 10위</translation>
    </message>
</context>
<context>
    <name>ScoreRows</name>
    <message>
        <source>A fresh start. Be the first on the board.</source>
        <translation>새로운 시작이에요. 첫 이름을 남겨 보세요.</translation>
    </message>
    <message>
        <source>Scores</source>
        <extracomment>Read aloud for the list of scores.</extracomment>
        <translation>점수 목록</translation>
    </message>
</context>
<context>
    <name>TitleBand</name>
    <message>
        <source>Maximise</source>
        <extracomment>Tooltips of the window buttons, in the words that desktops use in the language.</extracomment>
        <translation>최대화</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>최소화</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
</context>
</TS>

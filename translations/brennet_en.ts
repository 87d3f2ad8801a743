<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>CAdvancedSettingWidget</name>
    <message>
        <source>组合快捷键</source>
        <translation>Keypad presets</translation>
    </message>
    <message>
        <source>小键盘 Num784512  =  组合键 Alt+QWERDF</source>
        <translation>Keypad 784512  =  Alt+QWERDF</translation>
    </message>
    <message>
        <source>小键盘 Num784512  =  组合键 Alt+QWASZX</source>
        <translation>Keypad 784512  =  Alt+QWASZX</translation>
    </message>
    <message>
        <source>小键盘 Num784512  =  组合键 Alt+123456</source>
        <translation>Keypad 784512  =  Alt+123456</translation>
    </message>
    <message>
        <source>快捷喊话设置</source>
        <translation>Quick chat</translation>
    </message>
    <message>
        <source>快捷方式选择</source>
        <translation>Chat keys</translation>
    </message>
    <message>
        <source>ALT + 1～8</source>
        <translation>Alt + 1–8</translation>
    </message>
    <message>
        <source>ALT + F1～F8</source>
        <translation>Alt + F1–F8</translation>
    </message>
    <message>
        <source>热键设置</source>
        <translation>Hotkeys</translation>
    </message>
    <message>
        <source>改键开关</source>
        <translation>Hotkeys on/off</translation>
    </message>
    <message>
        <source>窗口锁鼠标</source>
        <translation>Lock cursor in windowed mode</translation>
    </message>
    <message>
        <source>快捷喊话</source>
        <translation>Quick chat</translation>
    </message>
    <message>
        <source>己方血量显示</source>
        <translation>Ally health bars</translation>
    </message>
    <message>
        <source>敌方血量显示</source>
        <translation>Enemy health bars</translation>
    </message>
    <message>
        <source>message %1:</source>
        <translation>Message %1:</translation>
    </message>
    <message>
        <source>快捷喊话短语</source>
        <translation>Quick-chat phrases</translation>
    </message>
</context>
<context>
    <name>CBasicSettingWidget</name>
    <message>
        <source>英雄技能快捷键</source>
        <translation>Hero skill keys</translation>
    </message>
    <message>
        <source>小键盘物品栏快捷键</source>
        <translation>Inventory keys (keypad)</translation>
    </message>
    <message>
        <source>自定义技能快捷键</source>
        <translation>Custom skill keys</translation>
    </message>
    <message>
        <source>滚轮改键</source>
        <translation>Mouse wheel</translation>
    </message>
    <message>
        <source>滚轮向上</source>
        <translation>Wheel up</translation>
    </message>
    <message>
        <source>滚轮中键</source>
        <translation>Wheel click</translation>
    </message>
    <message>
        <source>滚轮向下</source>
        <translation>Wheel down</translation>
    </message>
    <message>
        <source>技能提醒快捷键</source>
        <translation>Skill reminder key</translation>
    </message>
    <message>
        <source>常用选项</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>禁用左Win键</source>
        <translation>Disable left Windows key</translation>
    </message>
    <message>
        <source>窗口模式锁定鼠标</source>
        <translation>Lock cursor in windowed mode</translation>
    </message>
    <message>
        <source>显示己方血量</source>
        <translation>Show ally health bars</translation>
    </message>
    <message>
        <source>显示己方蓝量(需DotAOrrery)</source>
        <translation>Show ally mana (needs DotA Orrery)</translation>
    </message>
    <message>
        <source>显示敌方血量</source>
        <translation>Show enemy health bars</translation>
    </message>
    <message>
        <source>画面不拉伸（留黑边）</source>
        <translation>Keep aspect ratio (black bars)</translation>
    </message>
    <message>
        <source>延迟优化（请根据自身需求选用）</source>
        <translation>Reduce delay (if you need it)</translation>
    </message>
    <message>
        <source>英雄技能 %1</source>
        <translation>Hero skill %1</translation>
    </message>
    <message>
        <source>物品栏 %1</source>
        <translation>Item slot %1</translation>
    </message>
    <message>
        <source>自定义技能 %1：按下的键</source>
        <translation>Custom skill %1: key to press</translation>
    </message>
    <message>
        <source>自定义技能 %1：发送的键</source>
        <translation>Custom skill %1: key to send</translation>
    </message>
    <message>
        <source>组合改键：按下的键 %1</source>
        <translation>Combination: key to press %1</translation>
    </message>
    <message>
        <source>组合改键：发送的键</source>
        <translation>Combination: key to send</translation>
    </message>
</context>
<context>
    <name>CChatRouletteSettingWidget</name>
    <message>
        <source>Form</source>
        <translation>Chat wheel</translation>
    </message>
    <message>
        <source>聊天轮盘热键</source>
        <translation>Chat wheel key</translation>
    </message>
    <message>
        <source>己方显蓝</source>
        <translation>Show ally mana</translation>
    </message>
    <message>
        <source>可选短语</source>
        <translation>Ready-made phrases</translation>
    </message>
    <message>
        <source>点击短语放入当前轮盘短语，或拖到轮盘上</source>
        <translation>Click a phrase to put it into the selected slot, or drag it onto the wheel</translation>
    </message>
    <message>
        <source>initiate first</source>
        <translation>Initiate, I&apos;ll follow</translation>
    </message>
    <message>
        <source>withdraw</source>
        <translation>Fall back!</translation>
    </message>
    <message>
        <source>hang on</source>
        <translation>Hang on, help is coming</translation>
    </message>
    <message>
        <source>wait ,i will be in position</source>
        <translation>Wait, I&apos;m getting into position</translation>
    </message>
    <message>
        <source>caution,not to be caught</source>
        <translation>Careful, don&apos;t get caught</translation>
    </message>
    <message>
        <source>Miss!Miss</source>
        <translation>Miss! Miss!</translation>
    </message>
    <message>
        <source>all in,quick</source>
        <translation>All in, quick!</translation>
    </message>
    <message>
        <source>farm,not to be caught</source>
        <translation>Farm, but don&apos;t get caught</translation>
    </message>
    <message>
        <source>farm,no group battle</source>
        <translation>Farm, no team fights</translation>
    </message>
    <message>
        <source>assemblely</source>
        <translation>Group up!</translation>
    </message>
    <message>
        <source>jungle </source>
        <translation>I&apos;m going to the jungle</translation>
    </message>
    <message>
        <source>i will sacrifice</source>
        <translation>I&apos;ll sacrifice myself</translation>
    </message>
    <message>
        <source>assemble,remove fog</source>
        <translation>Group up, deward</translation>
    </message>
    <message>
        <source>do not chase,push tower</source>
        <translation>Don&apos;t chase, push the tower</translation>
    </message>
    <message>
        <source>come here, i am coming</source>
        <translation>Come here, I&apos;m on my way</translation>
    </message>
    <message>
        <source>i will try push towers down secretly,defend!</source>
        <translation>I&apos;ll sneak-push a tower, you defend!</translation>
    </message>
    <message>
        <source>push line respectively,run in danger </source>
        <translation>Split push, run when in danger</translation>
    </message>
    <message>
        <source>gank</source>
        <translation>Let&apos;s gank</translation>
    </message>
    <message>
        <source>back,defend</source>
        <translation>Go back and defend!</translation>
    </message>
    <message>
        <source>steady</source>
        <translation>Steady, we can win this</translation>
    </message>
    <message>
        <source>phrase 1</source>
        <translation>I&apos;m out of mana</translation>
    </message>
    <message>
        <source>phrase 2</source>
        <translation>I&apos;m low on health</translation>
    </message>
    <message>
        <source>phrase 3</source>
        <translation>My ultimate is ready</translation>
    </message>
    <message>
        <source>phrase 4</source>
        <translation>My ultimate is not ready yet</translation>
    </message>
    <message>
        <source>phrase 5</source>
        <translation>My skills are on cooldown</translation>
    </message>
    <message>
        <source>phrase 6</source>
        <translation>I&apos;m going back to base</translation>
    </message>
    <message>
        <source>phrase 7</source>
        <translation>I&apos;m almost level 6</translation>
    </message>
    <message>
        <source>phrase 8</source>
        <translation>I&apos;m back, let&apos;s go</translation>
    </message>
    <message>
        <source>phrase 9</source>
        <translation>I need money for my core item</translation>
    </message>
    <message>
        <source>phrase 10</source>
        <translation>My core item is done</translation>
    </message>
    <message>
        <source>phrase 11</source>
        <translation>I have a town portal scroll</translation>
    </message>
    <message>
        <source>phrase 12</source>
        <translation>Please buy wards</translation>
    </message>
    <message>
        <source>phrase 13</source>
        <translation>Please use the courier for me</translation>
    </message>
    <message>
        <source>phrase 14</source>
        <translation>Well played!</translation>
    </message>
    <message>
        <source>phrase 15</source>
        <translation>Thank you!</translation>
    </message>
    <message>
        <source>phrase 16</source>
        <translation>Sorry, my mistake</translation>
    </message>
    <message>
        <source>phrase 17</source>
        <translation>Don&apos;t worry, we can come back</translation>
    </message>
    <message>
        <source>phrase 18</source>
        <translation>Nice teamwork!</translation>
    </message>
    <message>
        <source>phrase 19</source>
        <translation>Please don&apos;t argue, focus on the game</translation>
    </message>
    <message>
        <source>phrase 20</source>
        <translation>Good luck, have fun!</translation>
    </message>
    <message>
        <source>phrase 21</source>
        <translation>That was close!</translation>
    </message>
    <message>
        <source>phrase 22</source>
        <translation>Good game!</translation>
    </message>
    <message>
        <source>game</source>
        <translation>Battle</translation>
    </message>
    <message>
        <source>status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>equipment</source>
        <translation>Equipment</translation>
    </message>
    <message>
        <source>emotions</source>
        <translation>Emotions</translation>
    </message>
    <message>
        <source>轮盘短语 %1</source>
        <translation>Wheel phrase %1</translation>
    </message>
</context>
<context>
    <name>CCustomMsgTableModel</name>
    <message>
        <source>index</source>
        <translation>No.</translation>
    </message>
    <message>
        <source>content</source>
        <translation>Phrase</translation>
    </message>
</context>
<context>
    <name>CDotA7BasicSetting</name>
    <message>
        <source>Form</source>
        <translation>DotA 7.0 keys</translation>
    </message>
    <message>
        <source>英雄技能</source>
        <translation>Hero abilities</translation>
    </message>
    <message>
        <source>英雄技能快速施法</source>
        <translation>Keys of the hero abilities</translation>
    </message>
    <message>
        <source>一般</source>
        <translation>Normal cast</translation>
    </message>
    <message>
        <source>快捷施法</source>
        <translation>Quick cast</translation>
    </message>
    <message>
        <source>单位动作</source>
        <translation>Unit actions</translation>
    </message>
    <message>
        <source>小键盘物品栏</source>
        <translation>Inventory (keypad)</translation>
    </message>
    <message>
        <source>基本设置</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>使用默认技能按键</source>
        <translation>Use the default ability keys</translation>
    </message>
    <message>
        <source>按CTRL+技能键学技能</source>
        <translation>Ctrl + ability key learns the ability</translation>
    </message>
    <message>
        <source>在鼠标当前位置快速施法</source>
        <translation>Quick cast at the mouse position</translation>
    </message>
    <message>
        <source>双击自动施法</source>
        <translation>Double click casts automatically</translation>
    </message>
    <message>
        <source>快捷喊话设置</source>
        <translation>Chat settings</translation>
    </message>
    <message>
        <source>移动</source>
        <translation>Move</translation>
    </message>
    <message>
        <source>保持原地</source>
        <translation>Hold position</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>巡逻</source>
        <translation>Patrol</translation>
    </message>
    <message>
        <source>攻击</source>
        <translation>Attack</translation>
    </message>
    <message>
        <source>技能学习</source>
        <translation>Learn ability</translation>
    </message>
    <message>
        <source>天赋学习</source>
        <translation>Learn talent</translation>
    </message>
    <message>
        <source>选择主英雄</source>
        <translation>Select main hero</translation>
    </message>
    <message>
        <source>选择英雄2</source>
        <translation>Select hero 2</translation>
    </message>
    <message>
        <source>选择英雄3</source>
        <translation>Select hero 3</translation>
    </message>
    <message>
        <source>选择英雄4</source>
        <translation>Select hero 4</translation>
    </message>
    <message>
        <source>选择英雄5</source>
        <translation>Select hero 5</translation>
    </message>
    <message>
        <source>选择信使</source>
        <translation>Select courier</translation>
    </message>
    <message>
        <source>选择所有单位</source>
        <translation>Select all units</translation>
    </message>
    <message>
        <source>选择其他单位</source>
        <translation>Select other units</translation>
    </message>
    <message>
        <source>选择能量圈</source>
        <translation>Select circle of power</translation>
    </message>
    <message>
        <source>计分板</source>
        <translation>Scoreboard</translation>
    </message>
    <message>
        <source>激活防御符文</source>
        <translation>Activate glyph</translation>
    </message>
    <message>
        <source>1-</source>
        <translation>1</translation>
    </message>
    <message>
        <source>2-</source>
        <translation>2</translation>
    </message>
    <message>
        <source>3-</source>
        <translation>3</translation>
    </message>
    <message>
        <source>4-</source>
        <translation>4</translation>
    </message>
    <message>
        <source>5-</source>
        <translation>5</translation>
    </message>
    <message>
        <source>6-</source>
        <translation>6</translation>
    </message>
    <message>
        <source>回程-</source>
        <translation>Town portal</translation>
    </message>
    <message>
        <source>英雄技能 %1（一般）</source>
        <translation>Hero ability %1 (normal cast)</translation>
    </message>
    <message>
        <source>英雄技能 %1（快捷施法）</source>
        <translation>Hero ability %1 (quick cast)</translation>
    </message>
    <message>
        <source>回程</source>
        <translation>Way home</translation>
    </message>
    <message>
        <source>物品栏 %1</source>
        <translation>Item slot %1</translation>
    </message>
</context>
<context>
    <name>CHotkeySettingDlg</name>
    <message>
        <source>魔兽改键设置</source>
        <translation>Warcraft III hotkeys</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>平台改键设置</source>
        <translation>Hotkeys</translation>
    </message>
    <message>
        <source>启用改键</source>
        <translation>Use hotkeys</translation>
    </message>
    <message>
        <source>选择方案：</source>
        <translation>Setting group:</translation>
    </message>
    <message>
        <source>选择方案</source>
        <translation>Setting group</translation>
    </message>
    <message>
        <source>切换至普通改键</source>
        <translation>Platform hotkeys</translation>
    </message>
    <message>
        <source>切换至DotA7.0专用改键</source>
        <translation>DotA 7.0 keys</translation>
    </message>
    <message>
        <source>清空设置</source>
        <translation>Clear settings</translation>
    </message>
    <message>
        <source>推荐方案</source>
        <translation>Recommended keys</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>setting group 1</source>
        <translation>Group 1</translation>
    </message>
    <message>
        <source>setting group 2</source>
        <translation>Group 2</translation>
    </message>
    <message>
        <source>setting group 3</source>
        <translation>Group 3</translation>
    </message>
    <message>
        <source>After resetting, your modification on basic and advanced settings will lost.
Are you sure to continue?</source>
        <translation>All keys, switches and phrases of this setting group will be cleared.
Do you want to go on?</translation>
    </message>
    <message>
        <source>reset settings</source>
        <translation>Reset settings</translation>
    </message>
    <message>
        <source>use system recommended settings</source>
        <translation>Recommended keys</translation>
    </message>
    <message>
        <source>Are you sure to use system recommended settings?</source>
        <translation>Your keys will be replaced by the recommended ones.
Do you want to go on?</translation>
    </message>
    <message>
        <source>After resetting, your modification on basic and advanced settings will lost.
Are you sure to continue?</source>
        <comment>DotA 7</comment>
        <translation>All DotA 7 keys, options and phrases will be cleared.
Do you want to go on?</translation>
    </message>
    <message>
        <source>查看按键</source>
        <translation>Keys in use</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>重做</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>复制自...</source>
        <translation>Copy from...</translation>
    </message>
    <message>
        <source>导出...</source>
        <translation>Export...</translation>
    </message>
    <message>
        <source>导入...</source>
        <translation>Import...</translation>
    </message>
</context>
<context>
    <name>CHotkeySettingPage</name>
    <message>
        <source>英雄技能</source>
        <translation>Hero skills</translation>
    </message>
    <message>
        <source>只对英雄有效</source>
        <translation>Heroes only</translation>
    </message>
    <message>
        <source>技能键只对英雄有效</source>
        <translation>Skill keys work for heroes only</translation>
    </message>
    <message>
        <source>全部设为快捷施法</source>
        <translation>Quick cast for all</translation>
    </message>
    <message>
        <source>全部设为常规施法</source>
        <translation>Normal cast for all</translation>
    </message>
    <message>
        <source>小键盘物品栏</source>
        <translation>Inventory (keypad)</translation>
    </message>
    <message>
        <source>自定义改键</source>
        <translation>Key remaps</translation>
    </message>
    <message>
        <source>自定义改键只对英雄有效</source>
        <translation>Remaps work for heroes only</translation>
    </message>
    <message>
        <source>小键盘组合快捷键</source>
        <translation>Keypad presets</translation>
    </message>
    <message>
        <source>Num784512  =  Alt+QWERDF</source>
        <translation>Keypad 784512  =  Alt+QWERDF</translation>
    </message>
    <message>
        <source>Num784512  =  Alt+QWASZX</source>
        <translation>Keypad 784512  =  Alt+QWASZX</translation>
    </message>
    <message>
        <source>Num784512  =  Alt+123456</source>
        <translation>Keypad 784512  =  Alt+123456</translation>
    </message>
    <message>
        <source>滚轮改键</source>
        <translation>Mouse wheel</translation>
    </message>
    <message>
        <source>滚轮向上</source>
        <translation>Wheel up</translation>
    </message>
    <message>
        <source>滚轮中键</source>
        <translation>Wheel click</translation>
    </message>
    <message>
        <source>滚轮向下</source>
        <translation>Wheel down</translation>
    </message>
    <message>
        <source>游戏设置</source>
        <translation>Game options</translation>
    </message>
    <message>
        <source>Orrery设置</source>
        <translation>Orrery settings</translation>
    </message>
    <message>
        <source>快捷喊话</source>
        <translation>Quick chat</translation>
    </message>
    <message>
        <source>7.0专用改键</source>
        <translation>DotA 7.0 keys</translation>
    </message>
    <message>
        <source>英雄技能 %1</source>
        <translation>Hero skill %1</translation>
    </message>
    <message>
        <source>物品栏 %1</source>
        <translation>Item slot %1</translation>
    </message>
    <message>
        <source>%1 快捷施法</source>
        <translation>%1: quick cast</translation>
    </message>
    <message>
        <source>快捷施法</source>
        <translation>Quick cast</translation>
    </message>
    <message>
        <source>自定义改键 %1：按下的键</source>
        <translation>Remap %1: key to press</translation>
    </message>
    <message>
        <source>自定义改键 %1：发送的键</source>
        <translation>Remap %1: key to send</translation>
    </message>
    <message>
        <source>组合改键：按下的键 %1</source>
        <translation>Combination: key to press %1</translation>
    </message>
    <message>
        <source>组合改键：发送的键</source>
        <translation>Combination: key to send</translation>
    </message>
    <message>
        <source>窗口模式锁定鼠标</source>
        <translation>Lock cursor in windowed mode</translation>
    </message>
    <message>
        <source>显示己方血量</source>
        <translation>Show ally health bars</translation>
    </message>
    <message>
        <source>显示敌方血量</source>
        <translation>Show enemy health bars</translation>
    </message>
    <message>
        <source>禁用左Win键</source>
        <translation>Disable left Windows key</translation>
    </message>
    <message>
        <source>禁用左Alt键</source>
        <translation>Disable left Alt key</translation>
    </message>
    <message>
        <source>禁用左Alt键显血</source>
        <translation>No health bars with left Alt</translation>
    </message>
    <message>
        <source>画面不拉伸（留黑边）</source>
        <translation>Keep aspect ratio (black bars)</translation>
    </message>
    <message>
        <source>延迟优化</source>
        <translation>Reduce delay</translation>
    </message>
    <message>
        <source>隐藏游戏内按钮</source>
        <translation>Hide in-game buttons</translation>
    </message>
    <message>
        <source>在游戏中切换此项的按键</source>
        <translation>Key that switches this in game</translation>
    </message>
    <message>
        <source>%1：按键</source>
        <translation>%1: key</translation>
    </message>
</context>
<context>
    <name>CKeyLineEdit</name>
    <message>
        <source>按键输入框：按下的键即成为此项的按键</source>
        <translation>Key field: takes the next key that you press</translation>
    </message>
</context>
<context>
    <name>CMsgBox</name>
    <message>
        <source>error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>failed to read qss file</source>
        <translation>The style sheet could not be read.</translation>
    </message>
</context>
<context>
    <name>CNoticeStrip</name>
    <message>
        <source>关闭提示</source>
        <translation>Close this note</translation>
    </message>
</context>
<context>
    <name>COrrerySettingDlg</name>
    <message>
        <source>Orrery设置</source>
        <translation>Orrery settings</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>打开/关闭Orrery实时数据</source>
        <translation>Open/close Orrery live data</translation>
    </message>
    <message>
        <source>打开/关闭Orrery生涯数据</source>
        <translation>Open/close Orrery career data</translation>
    </message>
    <message>
        <source>技能提醒快捷键（Dota）</source>
        <translation>Skill reminder key (DotA)</translation>
    </message>
    <message>
        <source>显示己方蓝量（Dota）</source>
        <translation>Show ally mana (DotA)</translation>
    </message>
</context>
<context>
    <name>ChangeMarks</name>
    <message>
        <source>打开窗口时：%1</source>
        <translation>When the dialog opened: %1</translation>
    </message>
</context>
<context>
    <name>ChatKeySettingWidget</name>
    <message>
        <source>CAdvancedSettingWidget</source>
        <translation>Quick chat</translation>
    </message>
    <message>
        <source>快捷喊话设置</source>
        <translation>Quick chat</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>3</source>
        <translation>3</translation>
    </message>
    <message>
        <source>4</source>
        <translation>4</translation>
    </message>
    <message>
        <source>5</source>
        <translation>5</translation>
    </message>
    <message>
        <source>6</source>
        <translation>6</translation>
    </message>
    <message>
        <source>7</source>
        <translation>7</translation>
    </message>
    <message>
        <source>8</source>
        <translation>8</translation>
    </message>
    <message>
        <source>快捷键</source>
        <translation>Chat keys</translation>
    </message>
    <message>
        <source>ALT + 1～8</source>
        <translation>Alt + 1–8</translation>
    </message>
    <message>
        <source>ALT + F1～F8</source>
        <translation>Alt + F1–F8</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>喊话 %1</source>
        <translation>Message %1</translation>
    </message>
</context>
<context>
    <name>Dota7ChatKeySettingWidget</name>
    <message>
        <source>CAdvancedSettingWidget</source>
        <translation>DotA 7.0 chat</translation>
    </message>
    <message>
        <source>平台改键设置</source>
        <translation>Quick chat</translation>
    </message>
    <message>
        <source>开局自动喊话</source>
        <translation>Said when a game starts</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>快捷喊话 %1</source>
        <translation>Quick chat %1</translation>
    </message>
    <message>
        <source>开局喊话 %1</source>
        <translation>Message %1 at the start</translation>
    </message>
    <message>
        <source>快捷喊话 %1 的按键</source>
        <translation>Key of quick chat %1</translation>
    </message>
</context>
<context>
    <name>DroppedKeysNotice</name>
    <message>
        <source>您的设置中有 1 个按键无法使用：%1</source>
        <translation>1 key of your settings could not be used: %1</translation>
    </message>
    <message>
        <source>您的设置中有 %1 个按键无法使用：%2</source>
        <translation>%1 keys of your settings could not be used: %2</translation>
    </message>
</context>
<context>
    <name>KeyConflict</name>
    <message>
        <source>%1 已用于%2</source>
        <translation>%1 is %2</translation>
    </message>
    <message>
        <source>%1 已用于小键盘组合快捷键</source>
        <translation>%1 is a key of the keypad preset</translation>
    </message>
    <message>
        <source>%1 已用于快捷喊话</source>
        <translation>%1 sends a quick-chat phrase</translation>
    </message>
    <message>
        <source>%1 不能用作快捷键</source>
        <translation>%1 cannot be a hotkey</translation>
    </message>
    <message>
        <source>“%1”不是按键</source>
        <translation>&quot;%1&quot; is no key</translation>
    </message>
    <message>
        <source>%1：%2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>方案%1，%2：%3</source>
        <translation>Group %1, %2: %3</translation>
    </message>
    <message>
        <source>没有“%1”这个选项</source>
        <translation>there is no choice &quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1；%2</source>
        <translation>%1; %2</translation>
    </message>
</context>
<context>
    <name>KeyFieldMenu</name>
    <message>
        <source>恢复原按键</source>
        <translation>Put back</translation>
    </message>
    <message>
        <source>恢复：%1</source>
        <translation>Put back: %1</translation>
    </message>
    <message>
        <source>恢复：%1（%2）</source>
        <translation>Put back: %1 (%2)</translation>
    </message>
    <message>
        <source>清除</source>
        <translation>Clear</translation>
    </message>
</context>
<context>
    <name>KeyHolder</name>
    <message>
        <source>上排</source>
        <translation>top row</translation>
    </message>
    <message>
        <source>中排</source>
        <translation>middle row</translation>
    </message>
    <message>
        <source>下排</source>
        <translation>bottom row</translation>
    </message>
    <message>
        <source>第一个</source>
        <translation>first</translation>
    </message>
    <message>
        <source>第二个</source>
        <translation>second</translation>
    </message>
    <message>
        <source>第三个</source>
        <translation>third</translation>
    </message>
    <message>
        <source>第四个</source>
        <translation>fourth</translation>
    </message>
    <message>
        <source>%1（%2，%3）</source>
        <translation>%1 (%2, %3)</translation>
    </message>
    <message>
        <source>%1（在主窗口中）</source>
        <translation>%1 (in the main window)</translation>
    </message>
    <message>
        <source>%1（在“Orrery设置”中）</source>
        <translation>%1 (under &quot;Orrery settings&quot;)</translation>
    </message>
    <message>
        <source>%1（在“快捷喊话”中）</source>
        <translation>%1 (under &quot;Quick chat&quot;)</translation>
    </message>
    <message>
        <source>%1（没有窗口显示它；“清空设置”可将其移除）</source>
        <translation>%1 (no window shows it; &quot;Clear settings&quot; removes it)</translation>
    </message>
    <message>
        <source>快捷喊话第 %1 句</source>
        <translation>quick-chat phrase %1</translation>
    </message>
    <message>
        <source>小键盘组合快捷键 %1，小键盘 %2</source>
        <translation>keypad preset %1, keypad %2</translation>
    </message>
    <message>
        <source>%1：%2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>不能用作快捷键</source>
        <translation>cannot be a hotkey</translation>
    </message>
    <message>
        <source>在游戏聊天中用于粘贴；聊天轮盘的热键已移除</source>
        <translation>pastes text in the game&apos;s chat; the chat wheel has no key any more</translation>
    </message>
    <message>
        <source>%1：没有按键</source>
        <translation>%1: no key</translation>
    </message>
    <message>
        <source>也用于：%1</source>
        <translation>also: %1</translation>
    </message>
    <message>
        <source>%1（在“快捷喊话设置”中）</source>
        <translation>%1 (under &quot;Chat settings&quot;)</translation>
    </message>
</context>
<context>
    <name>KeyMapWindow</name>
    <message>
        <source>查看按键</source>
        <translation>Keys in use</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>复制图片</source>
        <translation>Copy as picture</translation>
    </message>
    <message>
        <source>保存图片...</source>
        <translation>Save picture...</translation>
    </message>
    <message>
        <source>键盘图</source>
        <translation>Keyboard</translation>
    </message>
    <message>
        <source>搜索按键</source>
        <translation>Search the keys</translation>
    </message>
    <message>
        <source>排序方式</source>
        <translation>Order of the list</translation>
    </message>
    <message>
        <source>使用中的按键</source>
        <translation>Keys in use</translation>
    </message>
    <message>
        <source>技%1</source>
        <translation>S%1</translation>
    </message>
    <message>
        <source>物%1</source>
        <translation>I%1</translation>
    </message>
    <message>
        <source>令%1</source>
        <translation>O%1</translation>
    </message>
    <message>
        <source>话%1</source>
        <translation>C%1</translation>
    </message>
    <message>
        <source>主窗口</source>
        <translation>Main window</translation>
    </message>
    <message>
        <source>快捷喊话设置</source>
        <translation>Chat settings</translation>
    </message>
    <message>
        <source>%1：直接按下时无作用（%2）</source>
        <translation>%1: does nothing by itself (%2)</translation>
    </message>
    <message>
        <source>%1：%2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1：%2 → 发送 %3</source>
        <translation>%1: %2 → sends %3</translation>
    </message>
    <message>
        <source>%1：%2，与 %4 同时按下 → 发送 %3</source>
        <translation>%1: %2, together with %4 → sends %3</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>%1：空闲</source>
        <translation>%1: nothing, it is free</translation>
    </message>
    <message>
        <source>%1：不能用作快捷键</source>
        <translation>%1: cannot be a hotkey</translation>
    </message>
    <message>
        <source>英雄技能</source>
        <translation>Hero skills</translation>
    </message>
    <message>
        <source>物品</source>
        <translation>Items</translation>
    </message>
    <message>
        <source>改键：按下的键</source>
        <translation>Remap: key to press</translation>
    </message>
    <message>
        <source>改键：发送的键</source>
        <translation>Remap: key to send</translation>
    </message>
    <message>
        <source>命令和选择</source>
        <translation>Orders and selections</translation>
    </message>
    <message>
        <source>选项</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>喊话</source>
        <translation>Chat</translation>
    </message>
    <message>
        <source>Orrery</source>
        <translation>Orrery</translation>
    </message>
    <message>
        <source>Orrery设置</source>
        <translation>Orrery settings</translation>
    </message>
    <message>
        <source>快捷喊话</source>
        <translation>Quick chat</translation>
    </message>
    <message>
        <source>设置文件</source>
        <translation>Settings file</translation>
    </message>
    <message>
        <source>鼠标滚轮</source>
        <translation>mouse wheel</translation>
    </message>
    <message>
        <source>→改%1</source>
        <translation>→R%1</translation>
    </message>
    <message>
        <source>改%1→</source>
        <translation>R%1→</translation>
    </message>
    <message>
        <source>→组</source>
        <translation>→Cmb</translation>
    </message>
    <message>
        <source>组→</source>
        <translation>Cmb→</translation>
    </message>
    <message>
        <source>览%1</source>
        <translation>Orr%1</translation>
    </message>
    <message>
        <source>话</source>
        <translation>Chat</translation>
    </message>
    <message>
        <source>项</source>
        <translation>Opt</translation>
    </message>
    <message>
        <source>按按键排序</source>
        <translation>By key</translation>
    </message>
    <message>
        <source>按位置排序</source>
        <translation>By place</translation>
    </message>
    <message>
        <source>按键</source>
        <translation>Key</translation>
    </message>
    <message>
        <source>作用</source>
        <translation>What it does</translation>
    </message>
    <message>
        <source>设置于</source>
        <translation>Set in</translation>
    </message>
    <message>
        <source>按任意键或滚动滚轮，即可查看它的作用。Shift+Tab 离开键盘图。</source>
        <translation>Press any key or turn the wheel to see what it does. Shift+Tab leaves the keyboard.</translation>
    </message>
    <message>
        <source>保存图片</source>
        <translation>Save picture</translation>
    </message>
    <message>
        <source>图片无法保存：%1</source>
        <translation>The picture could not be saved: %1</translation>
    </message>
    <message>
        <source>无修饰键</source>
        <translation>Plain</translation>
    </message>
    <message>
        <source>搜索：</source>
        <translation>Search:</translation>
    </message>
</context>
<context>
    <name>QDialogButtonBox</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Don&apos;t save</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>RestoreDefaults</source>
        <translation>Restore defaults</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>SaveAll</source>
        <translation>Save all</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>YesToAll</source>
        <translation>Yes to all</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>NoToAll</source>
        <translation>No to all</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Abort</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Retry</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignore</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cu&amp;t</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Paste</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Select all</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>IDS_TITLE</source>
        <translation>Hotkey settings</translation>
    </message>
    <message>
        <source>IDS_KEY_USED</source>
        <translation>This key is already in use. Please choose another one.</translation>
    </message>
    <message>
        <source>IDS_GROUP_KEY_USED</source>
        <translation>One of these keys is already in use, so they cannot be chosen.</translation>
    </message>
</context>
<context>
    <name>SchemeTransferWindow</name>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>来自：</source>
        <translation>From:</translation>
    </message>
    <message>
        <source>来自</source>
        <translation>From</translation>
    </message>
    <message>
        <source>更改预览</source>
        <translation>What will change</translation>
    </message>
    <message>
        <source>采用</source>
        <translation>Take over</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Setting</translation>
    </message>
    <message>
        <source>现在</source>
        <translation>Now</translation>
    </message>
    <message>
        <source>之后</source>
        <translation>Then</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>更改：%1 项</source>
        <translation>Changes: %1</translation>
    </message>
    <message>
        <source>更改：%1 项，无法采用：%2 项</source>
        <translation>Changes: %1, cannot be taken over: %2</translation>
    </message>
    <message>
        <source>无法采用：%1</source>
        <translation>Cannot be taken over: %1</translation>
    </message>
</context>
<context>
    <name>SettingText</name>
    <message>
        <source>镜头缩放</source>
        <translation>Camera zoom</translation>
    </message>
    <message>
        <source>小键盘组合快捷键</source>
        <translation>Keypad preset</translation>
    </message>
    <message>
        <source>快捷喊话的按键</source>
        <translation>Quick-chat keys</translation>
    </message>
    <message>
        <source>聊天轮盘短语 %1</source>
        <translation>Chat wheel phrase %1</translation>
    </message>
    <message>
        <source>开</source>
        <translation>on</translation>
    </message>
    <message>
        <source>关</source>
        <translation>off</translation>
    </message>
    <message>
        <source>无</source>
        <translation>none</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>%1：%2 → %3</source>
        <translation>%1: %2 → %3</translation>
    </message>
    <message>
        <source>快捷喊话短语 %1</source>
        <translation>Quick-chat phrase %1</translation>
    </message>
</context>
<context>
    <name>StepText</name>
    <message>
        <source>方案</source>
        <translation>Setting group</translation>
    </message>
    <message>
        <source>%1（快捷施法）</source>
        <translation>%1 (quick cast)</translation>
    </message>
    <message>
        <source>以及另外 %1 项</source>
        <translation>and %1 more</translation>
    </message>
</context>
<context>
    <name>brennet::SchemeTransferButtons</name>
    <message>
        <source>改键设置</source>
        <translation>Hotkey settings</translation>
    </message>
    <message>
        <source>文件无法保存。</source>
        <translation>The file cannot be saved.</translation>
    </message>
    <message>
        <source>文件已保存，但其中一些字符无法写入，已被替换。</source>
        <translation>The file has been saved, but it cannot hold some of the characters in your phrases. They have been replaced.</translation>
    </message>
    <message>
        <source>文件已损坏，您的设置没有改变。</source>
        <translation>The file is damaged. Your settings have not changed.</translation>
    </message>
    <message>
        <source>这不是改键设置文件，您的设置没有改变。</source>
        <translation>This is no file of hotkey settings. Your settings have not changed.</translation>
    </message>
    <message>
        <source>文件无法读取，您的设置没有改变。</source>
        <translation>The file cannot be read. Your settings have not changed.</translation>
    </message>
    <message>
        <source>%1：%2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>这是您正在使用的设置文件，请选择其他文件。</source>
        <translation>This is the settings file that you are using. Please choose another one.</translation>
    </message>
</context>
</TS>

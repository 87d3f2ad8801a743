<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>CAdvancedSettingWidget</name>
    <message>
        <source>组合快捷键</source>
        <translation>组合快捷键</translation>
    </message>
    <message>
        <source>小键盘 Num784512  =  组合键 Alt+QWERDF</source>
        <translation>小键盘 Num784512  =  组合键 Alt+QWERDF</translation>
    </message>
    <message>
        <source>小键盘 Num784512  =  组合键 Alt+QWASZX</source>
        <translation>小键盘 Num784512  =  组合键 Alt+QWASZX</translation>
    </message>
    <message>
        <source>小键盘 Num784512  =  组合键 Alt+123456</source>
        <translation>小键盘 Num784512  =  组合键 Alt+123456</translation>
    </message>
    <message>
        <source>快捷喊话设置</source>
        <translation>快捷喊话设置</translation>
    </message>
    <message>
        <source>快捷方式选择</source>
        <translation>快捷方式选择</translation>
    </message>
    <message>
        <source>ALT + 1～8</source>
        <translation>ALT + 1～8</translation>
    </message>
    <message>
        <source>ALT + F1～F8</source>
        <translation>ALT + F1～F8</translation>
    </message>
    <message>
        <source>热键设置</source>
        <translation>热键设置</translation>
    </message>
    <message>
        <source>改键开关</source>
        <translation>改键开关</translation>
    </message>
    <message>
        <source>窗口锁鼠标</source>
        <translation>窗口锁鼠标</translation>
    </message>
    <message>
        <source>快捷喊话</source>
        <translation>快捷喊话</translation>
    </message>
    <message>
        <source>己方血量显示</source>
        <translation>己方血量显示</translation>
    </message>
    <message>
        <source>敌方血量显示</source>
        <translation>敌方血量显示</translation>
    </message>
    <message>
        <source>message %1:</source>
        <translation>喊话 %1：</translation>
    </message>
    <message>
        <source>快捷喊话短语</source>
        <translation>快捷喊话短语</translation>
    </message>
</context>
<context>
    <name>CBasicSettingWidget</name>
    <message>
        <source>英雄技能快捷键</source>
        <translation>英雄技能快捷键</translation>
    </message>
    <message>
        <source>小键盘物品栏快捷键</source>
        <translation>小键盘物品栏快捷键</translation>
    </message>
    <message>
        <source>自定义技能快捷键</source>
        <translation>自定义技能快捷键</translation>
    </message>
    <message>
        <source>滚轮改键</source>
        <translation>滚轮改键</translation>
    </message>
    <message>
        <source>滚轮向上</source>
        <translation>滚轮向上</translation>
    </message>
    <message>
        <source>滚轮中键</source>
        <translation>滚轮中键</translation>
    </message>
    <message>
        <source>滚轮向下</source>
        <translation>滚轮向下</translation>
    </message>
    <message>
        <source>技能提醒快捷键</source>
        <translation>技能提醒快捷键</translation>
    </message>
    <message>
        <source>常用选项</source>
        <translation>常用选项</translation>
    </message>
    <message>
        <source>禁用左Win键</source>
        <translation>禁用左Win键</translation>
    </message>
    <message>
        <source>窗口模式锁定鼠标</source>
        <translation>窗口模式锁定鼠标</translation>
    </message>
    <message>
        <source>显示己方血量</source>
        <translation>显示己方血量</translation>
    </message>
    <message>
        <source>显示己方蓝量(需DotAOrrery)</source>
        <translation>显示己方蓝量(需DotAOrrery)</translation>
    </message>
    <message>
        <source>显示敌方血量</source>
        <translation>显示敌方血量</translation>
    </message>
    <message>
        <source>画面不拉伸（留黑边）</source>
        <translation>画面不拉伸（留黑边）</translation>
    </message>
    <message>
        <source>延迟优化（请根据自身需求选用）</source>
        <translation>延迟优化（请根据自身需求选用）</translation>
    </message>
    <message>
        <source>英雄技能 %1</source>
        <translation>英雄技能 %1</translation>
    </message>
    <message>
        <source>物品栏 %1</source>
        <translation>物品栏 %1</translation>
    </message>
    <message>
        <source>自定义技能 %1：按下的键</source>
        <translation>自定义技能 %1：按下的键</translation>
    </message>
    <message>
        <source>自定义技能 %1：发送的键</source>
        <translation>自定义技能 %1：发送的键</translation>
    </message>
    <message>
        <source>组合改键：按下的键 %1</source>
        <translation>组合改键：按下的键 %1</translation>
    </message>
    <message>
        <source>组合改键：发送的键</source>
        <translation>组合改键：发送的键</translation>
    </message>
</context>
<context>
    <name>CChatRouletteSettingWidget</name>
    <message>
        <source>Form</source>
        <translation>聊天轮盘</translation>
    </message>
    <message>
        <source>聊天轮盘热键</source>
        <translation>聊天轮盘热键</translation>
    </message>
    <message>
        <source>己方显蓝</source>
        <translation>己方显蓝</translation>
    </message>
    <message>
        <source>可选短语</source>
        <translation>可选短语</translation>
    </message>
    <message>
        <source>点击短语放入当前轮盘短语，或拖到轮盘上</source>
        <translation>点击短语放入当前轮盘短语，或拖到轮盘上</translation>
    </message>
    <message>
        <source>initiate first</source>
        <translation>先手开团，我跟上</translation>
    </message>
    <message>
        <source>withdraw</source>
        <translation>撤退！</translation>
    </message>
    <message>
        <source>hang on</source>
        <translation>坚持住，支援马上到</translation>
    </message>
    <message>
        <source>wait ,i will be in position</source>
        <translation>等一下，我去就位</translation>
    </message>
    <message>
        <source>caution,not to be caught</source>
        <translation>小心，别被抓</translation>
    </message>
    <message>
        <source>Miss!Miss</source>
        <translation>敌人不见了，小心！</translation>
    </message>
    <message>
        <source>all in,quick</source>
        <translation>快，一起上！</translation>
    </message>
    <message>
        <source>farm,not to be caught</source>
        <translation>安心打钱，别被抓</translation>
    </message>
    <message>
        <source>farm,no group battle</source>
        <translation>先打钱，别打团</translation>
    </message>
    <message>
        <source>assemblely</source>
        <translation>集合！</translation>
    </message>
    <message>
        <source>jungle </source>
        <translation>我去打野</translation>
    </message>
    <message>
        <source>i will sacrifice</source>
        <translation>我来牺牲</translation>
    </message>
    <message>
        <source>assemble,remove fog</source>
        <translation>集合，排眼</translation>
    </message>
    <message>
        <source>do not chase,push tower</source>
        <translation>别追了，推塔</translation>
    </message>
    <message>
        <source>come here, i am coming</source>
        <translation>过来，我马上到</translation>
    </message>
    <message>
        <source>i will try push towers down secretly,defend!</source>
        <translation>我去偷塔，你们防守！</translation>
    </message>
    <message>
        <source>push line respectively,run in danger </source>
        <translation>分路带线，有危险就跑</translation>
    </message>
    <message>
        <source>gank</source>
        <translation>我们去抓人</translation>
    </message>
    <message>
        <source>back,defend</source>
        <translation>回防！</translation>
    </message>
    <message>
        <source>steady</source>
        <translation>稳住，我们能赢</translation>
    </message>
    <message>
        <source>phrase 1</source>
        <translation>我没蓝了</translation>
    </message>
    <message>
        <source>phrase 2</source>
        <translation>我血量不足</translation>
    </message>
    <message>
        <source>phrase 3</source>
        <translation>我大招好了</translation>
    </message>
    <message>
        <source>phrase 4</source>
        <translation>我大招还没好</translation>
    </message>
    <message>
        <source>phrase 5</source>
        <translation>我技能在冷却</translation>
    </message>
    <message>
        <source>phrase 6</source>
        <translation>我回城补给</translation>
    </message>
    <message>
        <source>phrase 7</source>
        <translation>我快到6级了</translation>
    </message>
    <message>
        <source>phrase 8</source>
        <translation>我回来了，走吧</translation>
    </message>
    <message>
        <source>phrase 9</source>
        <translation>我差钱出核心装备</translation>
    </message>
    <message>
        <source>phrase 10</source>
        <translation>我核心装备出了</translation>
    </message>
    <message>
        <source>phrase 11</source>
        <translation>我有TP</translation>
    </message>
    <message>
        <source>phrase 12</source>
        <translation>请买眼</translation>
    </message>
    <message>
        <source>phrase 13</source>
        <translation>请用鸡帮我送装备</translation>
    </message>
    <message>
        <source>phrase 14</source>
        <translation>打得漂亮！</translation>
    </message>
    <message>
        <source>phrase 15</source>
        <translation>谢谢！</translation>
    </message>
    <message>
        <source>phrase 16</source>
        <translation>抱歉，我的失误</translation>
    </message>
    <message>
        <source>phrase 17</source>
        <translation>没关系，还能翻盘</translation>
    </message>
    <message>
        <source>phrase 18</source>
        <translation>配合得好！</translation>
    </message>
    <message>
        <source>phrase 19</source>
        <translation>别吵了，好好打</translation>
    </message>
    <message>
        <source>phrase 20</source>
        <translation>祝大家玩得开心！</translation>
    </message>
    <message>
        <source>phrase 21</source>
        <translation>好险！</translation>
    </message>
    <message>
        <source>phrase 22</source>
        <translation>打得不错，GG！</translation>
    </message>
    <message>
        <source>game</source>
        <translation>战斗</translation>
    </message>
    <message>
        <source>status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>equipment</source>
        <translation>装备</translation>
    </message>
    <message>
        <source>emotions</source>
        <translation>表情</translation>
    </message>
    <message>
        <source>轮盘短语 %1</source>
        <translation>轮盘短语 %1</translation>
    </message>
</context>
<context>
    <name>CCustomMsgTableModel</name>
    <message>
        <source>index</source>
        <translation>序号</translation>
    </message>
    <message>
        <source>content</source>
        <translation>内容</translation>
    </message>
</context>
<context>
    <name>CDotA7BasicSetting</name>
    <message>
        <source>Form</source>
        <translation>DotA7.0改键设置</translation>
    </message>
    <message>
        <source>英雄技能</source>
        <translation>英雄技能</translation>
    </message>
    <message>
        <source>英雄技能快速施法</source>
        <translation>英雄技能快速施法</translation>
    </message>
    <message>
        <source>一般</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>快捷施法</source>
        <translation>快捷施法</translation>
    </message>
    <message>
        <source>单位动作</source>
        <translation>单位动作</translation>
    </message>
    <message>
        <source>小键盘物品栏</source>
        <translation>小键盘物品栏</translation>
    </message>
    <message>
        <source>基本设置</source>
        <translation>基本设置</translation>
    </message>
    <message>
        <source>使用默认技能按键</source>
        <translation>使用默认技能按键</translation>
    </message>
    <message>
        <source>按CTRL+技能键学技能</source>
        <translation>按CTRL+技能键学技能</translation>
    </message>
    <message>
        <source>在鼠标当前位置快速施法</source>
        <translation>在鼠标当前位置快速施法</translation>
    </message>
    <message>
        <source>双击自动施法</source>
        <translation>双击自动施法</translation>
    </message>
    <message>
        <source>快捷喊话设置</source>
        <translation>快捷喊话设置</translation>
    </message>
    <message>
        <source>移动</source>
        <translation>移动</translation>
    </message>
    <message>
        <source>保持原地</source>
        <translation>保持原地</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>巡逻</source>
        <translation>巡逻</translation>
    </message>
    <message>
        <source>攻击</source>
        <translation>攻击</translation>
    </message>
    <message>
        <source>技能学习</source>
        <translation>技能学习</translation>
    </message>
    <message>
        <source>天赋学习</source>
        <translation>天赋学习</translation>
    </message>
    <message>
        <source>选择主英雄</source>
        <translation>选择主英雄</translation>
    </message>
    <message>
        <source>选择英雄2</source>
        <translation>选择英雄2</translation>
    </message>
    <message>
        <source>选择英雄3</source>
        <translation>选择英雄3</translation>
    </message>
    <message>
        <source>选择英雄4</source>
        <translation>选择英雄4</translation>
    </message>
    <message>
        <source>选择英雄5</source>
        <translation>选择英雄5</translation>
    </message>
    <message>
        <source>选择信使</source>
        <translation>选择信使</translation>
    </message>
    <message>
        <source>选择所有单位</source>
        <translation>选择所有单位</translation>
    </message>
    <message>
        <source>选择其他单位</source>
        <translation>选择其他单位</translation>
    </message>
    <message>
        <source>选择能量圈</source>
        <translation>选择能量圈</translation>
    </message>
    <message>
        <source>计分板</source>
        <translation>计分板</translation>
    </message>
    <message>
        <source>激活防御符文</source>
        <translation>激活防御符文</translation>
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
        <translation>回程</translation>
    </message>
    <message>
        <source>英雄技能 %1（一般）</source>
        <translation>英雄技能 %1（一般）</translation>
    </message>
    <message>
        <source>英雄技能 %1（快捷施法）</source>
        <translation>英雄技能 %1（快捷施法）</translation>
    </message>
    <message>
        <source>回程</source>
        <translation>回程</translation>
    </message>
    <message>
        <source>物品栏 %1</source>
        <translation>物品栏 %1</translation>
    </message>
</context>
<context>
    <name>CHotkeySettingDlg</name>
    <message>
        <source>魔兽改键设置</source>
        <translation>魔兽改键设置</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>平台改键设置</source>
        <translation>平台改键设置</translation>
    </message>
    <message>
        <source>启用改键</source>
        <translation>启用改键</translation>
    </message>
    <message>
        <source>选择方案：</source>
        <translation>选择方案：</translation>
    </message>
    <message>
        <source>选择方案</source>
        <translation>选择方案</translation>
    </message>
    <message>
        <source>切换至普通改键</source>
        <translation>切换至普通改键</translation>
    </message>
    <message>
        <source>切换至DotA7.0专用改键</source>
        <translation>切换至DotA7.0专用改键</translation>
    </message>
    <message>
        <source>清空设置</source>
        <translation>清空设置</translation>
    </message>
    <message>
        <source>推荐方案</source>
        <translation>推荐方案</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>setting group 1</source>
        <translation>方案一</translation>
    </message>
    <message>
        <source>setting group 2</source>
        <translation>方案二</translation>
    </message>
    <message>
        <source>setting group 3</source>
        <translation>方案三</translation>
    </message>
    <message>
        <source>After resetting, your modification on basic and advanced settings will lost.
Are you sure to continue?</source>
        <translation>清空后，您在基础设置和高级设置中的修改将会丢失。
确定要继续吗？</translation>
    </message>
    <message>
        <source>reset settings</source>
        <translation>清空设置</translation>
    </message>
    <message>
        <source>use system recommended settings</source>
        <translation>使用推荐方案</translation>
    </message>
    <message>
        <source>Are you sure to use system recommended settings?</source>
        <translation>确定要使用系统推荐的设置吗？</translation>
    </message>
    <message>
        <source>After resetting, your modification on basic and advanced settings will lost.
Are you sure to continue?</source>
        <comment>DotA 7</comment>
        <translation>清空后，DotA7.0专用改键的所有按键、选项和喊话都将丢失。
确定要继续吗？</translation>
    </message>
    <message>
        <source>%1；%2</source>
        <translation>%1；%2</translation>
    </message>
    <message>
        <source>您的设置中有 1 个按键无法使用：%1</source>
        <translation>您的设置中有 1 个按键无法使用：%1</translation>
    </message>
    <message>
        <source>您的设置中有 %1 个按键无法使用：%2</source>
        <translation>您的设置中有 %1 个按键无法使用：%2</translation>
    </message>
</context>
<context>
    <name>CHotkeySettingPage</name>
    <message>
        <source>英雄技能</source>
        <translation>英雄技能</translation>
    </message>
    <message>
        <source>只对英雄有效</source>
        <translation>只对英雄有效</translation>
    </message>
    <message>
        <source>技能键只对英雄有效</source>
        <translation>技能键只对英雄有效</translation>
    </message>
    <message>
        <source>全部设为快捷施法</source>
        <translation>全部设为快捷施法</translation>
    </message>
    <message>
        <source>全部设为常规施法</source>
        <translation>全部设为常规施法</translation>
    </message>
    <message>
        <source>小键盘物品栏</source>
        <translation>小键盘物品栏</translation>
    </message>
    <message>
        <source>自定义改键</source>
        <translation>自定义改键</translation>
    </message>
    <message>
        <source>自定义改键只对英雄有效</source>
        <translation>自定义改键只对英雄有效</translation>
    </message>
    <message>
        <source>小键盘组合快捷键</source>
        <translation>小键盘组合快捷键</translation>
    </message>
    <message>
        <source>Num784512  =  Alt+QWERDF</source>
        <translation>Num784512  =  Alt+QWERDF</translation>
    </message>
    <message>
        <source>Num784512  =  Alt+QWASZX</source>
        <translation>Num784512  =  Alt+QWASZX</translation>
    </message>
    <message>
        <source>Num784512  =  Alt+123456</source>
        <translation>Num784512  =  Alt+123456</translation>
    </message>
    <message>
        <source>滚轮改键</source>
        <translation>滚轮改键</translation>
    </message>
    <message>
        <source>滚轮向上</source>
        <translation>滚轮向上</translation>
    </message>
    <message>
        <source>滚轮中键</source>
        <translation>滚轮中键</translation>
    </message>
    <message>
        <source>滚轮向下</source>
        <translation>滚轮向下</translation>
    </message>
    <message>
        <source>游戏设置</source>
        <translation>游戏设置</translation>
    </message>
    <message>
        <source>Orrery设置</source>
        <translation>Orrery设置</translation>
    </message>
    <message>
        <source>快捷喊话</source>
        <translation>快捷喊话</translation>
    </message>
    <message>
        <source>7.0专用改键</source>
        <translation>7.0专用改键</translation>
    </message>
    <message>
        <source>英雄技能 %1</source>
        <translation>英雄技能 %1</translation>
    </message>
    <message>
        <source>物品栏 %1</source>
        <translation>物品栏 %1</translation>
    </message>
    <message>
        <source>%1 快捷施法</source>
        <translation>%1 快捷施法</translation>
    </message>
    <message>
        <source>快捷施法</source>
        <translation>快捷施法</translation>
    </message>
    <message>
        <source>自定义改键 %1：按下的键</source>
        <translation>自定义改键 %1：按下的键</translation>
    </message>
    <message>
        <source>自定义改键 %1：发送的键</source>
        <translation>自定义改键 %1：发送的键</translation>
    </message>
    <message>
        <source>组合改键：按下的键 %1</source>
        <translation>组合改键：按下的键 %1</translation>
    </message>
    <message>
        <source>组合改键：发送的键</source>
        <translation>组合改键：发送的键</translation>
    </message>
    <message>
        <source>窗口模式锁定鼠标</source>
        <translation>窗口模式锁定鼠标</translation>
    </message>
    <message>
        <source>显示己方血量</source>
        <translation>显示己方血量</translation>
    </message>
    <message>
        <source>显示敌方血量</source>
        <translation>显示敌方血量</translation>
    </message>
    <message>
        <source>禁用左Win键</source>
        <translation>禁用左Win键</translation>
    </message>
    <message>
        <source>禁用左Alt键</source>
        <translation>禁用左Alt键</translation>
    </message>
    <message>
        <source>禁用左Alt键显血</source>
        <translation>禁用左Alt键显血</translation>
    </message>
    <message>
        <source>画面不拉伸（留黑边）</source>
        <translation>画面不拉伸（留黑边）</translation>
    </message>
    <message>
        <source>延迟优化</source>
        <translation>延迟优化</translation>
    </message>
    <message>
        <source>隐藏游戏内按钮</source>
        <translation>隐藏游戏内按钮</translation>
    </message>
    <message>
        <source>在游戏中切换此项的按键</source>
        <translation>在游戏中切换此项的按键</translation>
    </message>
    <message>
        <source>%1：按键</source>
        <translation>%1：按键</translation>
    </message>
</context>
<context>
    <name>CMsgBox</name>
    <message>
        <source>error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>failed to read qss file</source>
        <translation>无法读取样式表文件。</translation>
    </message>
</context>
<context>
    <name>CNoticeStrip</name>
    <message>
        <source>关闭提示</source>
        <translation>关闭提示</translation>
    </message>
</context>
<context>
    <name>COrrerySettingDlg</name>
    <message>
        <source>Orrery设置</source>
        <translation>Orrery设置</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>打开/关闭Orrery实时数据</source>
        <translation>打开/关闭Orrery实时数据</translation>
    </message>
    <message>
        <source>打开/关闭Orrery生涯数据</source>
        <translation>打开/关闭Orrery生涯数据</translation>
    </message>
    <message>
        <source>技能提醒快捷键（Dota）</source>
        <translation>技能提醒快捷键（Dota）</translation>
    </message>
    <message>
        <source>显示己方蓝量（Dota）</source>
        <translation>显示己方蓝量（Dota）</translation>
    </message>
</context>
<context>
    <name>ChatKeySettingWidget</name>
    <message>
        <source>CAdvancedSettingWidget</source>
        <translation>快捷喊话设置</translation>
    </message>
    <message>
        <source>快捷喊话设置</source>
        <translation>快捷喊话设置</translation>
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
        <translation>快捷键</translation>
    </message>
    <message>
        <source>ALT + 1～8</source>
        <translation>ALT + 1～8</translation>
    </message>
    <message>
        <source>ALT + F1～F8</source>
        <translation>ALT + F1～F8</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>喊话 %1</source>
        <translation>喊话 %1</translation>
    </message>
</context>
<context>
    <name>Dota7ChatKeySettingWidget</name>
    <message>
        <source>CAdvancedSettingWidget</source>
        <translation>DotA7.0喊话设置</translation>
    </message>
    <message>
        <source>平台改键设置</source>
        <translation>平台改键设置</translation>
    </message>
    <message>
        <source>开局自动喊话</source>
        <translation>开局自动喊话</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>快捷喊话 %1</source>
        <translation>快捷喊话 %1</translation>
    </message>
    <message>
        <source>开局喊话 %1</source>
        <translation>开局喊话 %1</translation>
    </message>
    <message>
        <source>快捷喊话 %1 的按键</source>
        <translation>快捷喊话 %1 的按键</translation>
    </message>
</context>
<context>
    <name>KeyConflict</name>
    <message>
        <source>%1 已用于%2</source>
        <translation>%1 已用于%2</translation>
    </message>
    <message>
        <source>%1 已用于小键盘组合快捷键</source>
        <translation>%1 已用于小键盘组合快捷键</translation>
    </message>
    <message>
        <source>%1 已用于快捷喊话</source>
        <translation>%1 已用于快捷喊话</translation>
    </message>
    <message>
        <source>%1 不能用作快捷键</source>
        <translation>%1 不能用作快捷键</translation>
    </message>
    <message>
        <source>“%1”不是按键</source>
        <translation>“%1”不是按键</translation>
    </message>
    <message>
        <source>%1：%2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>方案%1，%2：%3</source>
        <translation>方案%1，%2：%3</translation>
    </message>
</context>
<context>
    <name>KeyHolder</name>
    <message>
        <source>上排</source>
        <translation>上排</translation>
    </message>
    <message>
        <source>中排</source>
        <translation>中排</translation>
    </message>
    <message>
        <source>下排</source>
        <translation>下排</translation>
    </message>
    <message>
        <source>第一个</source>
        <translation>第一个</translation>
    </message>
    <message>
        <source>第二个</source>
        <translation>第二个</translation>
    </message>
    <message>
        <source>第三个</source>
        <translation>第三个</translation>
    </message>
    <message>
        <source>第四个</source>
        <translation>第四个</translation>
    </message>
    <message>
        <source>%1（%2，%3）</source>
        <translation>%1（%2，%3）</translation>
    </message>
    <message>
        <source>%1（在主窗口中）</source>
        <translation>%1（在主窗口中）</translation>
    </message>
    <message>
        <source>%1（在“Orrery设置”中）</source>
        <translation>%1（在“Orrery设置”中）</translation>
    </message>
    <message>
        <source>%1（在“快捷喊话”中）</source>
        <translation>%1（在“快捷喊话”中）</translation>
    </message>
    <message>
        <source>%1（没有窗口显示它；“清空设置”可将其移除）</source>
        <translation>%1（没有窗口显示它；“清空设置”可将其移除）</translation>
    </message>
    <message>
        <source>快捷喊话第 %1 句</source>
        <translation>快捷喊话第 %1 句</translation>
    </message>
    <message>
        <source>小键盘组合快捷键 %1，小键盘 %2</source>
        <translation>小键盘组合快捷键 %1，小键盘 %2</translation>
    </message>
    <message>
        <source>%1：%2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>不能用作快捷键</source>
        <translation>不能用作快捷键</translation>
    </message>
    <message>
        <source>在游戏聊天中用于粘贴；聊天轮盘的热键已移除</source>
        <translation>在游戏聊天中用于粘贴；聊天轮盘的热键已移除</translation>
    </message>
    <message>
        <source>%1：没有按键</source>
        <translation>%1：没有按键</translation>
    </message>
    <message>
        <source>也用于：%1</source>
        <translation>也用于：%1</translation>
    </message>
    <message>
        <source>%1（在“快捷喊话设置”中）</source>
        <translation>%1（在“快捷喊话设置”中）</translation>
    </message>
</context>
<context>
    <name>QDialogButtonBox</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>不保存</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>RestoreDefaults</source>
        <translation>恢复默认</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>SaveAll</source>
        <translation>全部保存</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>YesToAll</source>
        <translation>全部是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>NoToAll</source>
        <translation>全部否</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>忽略</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
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
    <name>QObject</name>
    <message>
        <source>IDS_TITLE</source>
        <translation>改键设置</translation>
    </message>
    <message>
        <source>IDS_KEY_USED</source>
        <translation>该按键已被使用，请换一个按键。</translation>
    </message>
    <message>
        <source>IDS_GROUP_KEY_USED</source>
        <translation>这组按键中有按键已被使用，无法选用。</translation>
    </message>
</context>
</TS>

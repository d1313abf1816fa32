<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>DataExport</name>
    <message>
        <source>%1&apos;s %2</source>
        <extracomment>Title of a page: %1 is a person&apos;s name, %2 the name of a category, such as Messages.</extracomment>
        <translation>%1の%2</translation>
    </message>
    <message>
        <source>in common use</source>
        <extracomment>Part of a file name, after the category: contacts in a form that any program reads.</extracomment>
        <translation>一般用</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>電話</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>メール</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Type</source>
        <extracomment>Column: whether a message was sent or received, or a call came in or went out.</extracomment>
        <translation>種類</translation>
    </message>
    <message>
        <source>Content</source>
        <extracomment>Column: the text of a message or of a note.</extracomment>
        <translation>内容</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>A message whose sending was never completed, or a conversation or a caller without a name.</extracomment>
        <translation>不明</translation>
    </message>
    <message>
        <source>Sent</source>
        <extracomment>Of a message.</extracomment>
        <translation>送信</translation>
    </message>
    <message>
        <source>Received</source>
        <extracomment>Of a message.</extracomment>
        <translation>受信</translation>
    </message>
    <message>
        <source>Name: %1</source>
        <translation>名前：%1</translation>
    </message>
    <message>
        <source>Phone: %1</source>
        <translation>電話：%1</translation>
    </message>
    <message>
        <source>Email: %1</source>
        <translation>メール：%1</translation>
    </message>
    <message>
        <source>Date: %1</source>
        <translation>日付：%1</translation>
    </message>
    <message>
        <source>Chat</source>
        <extracomment>Column: the name of a conversation.</extracomment>
        <translation>チャット</translation>
    </message>
    <message>
        <source>Chat: %1</source>
        <translation>チャット：%1</translation>
    </message>
    <message>
        <source>Group Event</source>
        <extracomment>Of a line in a conversation: somebody joined, left, and the like.</extracomment>
        <translation>グループの出来事</translation>
    </message>
    <message>
        <source>Fail</source>
        <extracomment>Of a message that could not be sent.</extracomment>
        <translation>送信失敗</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>別名</translation>
    </message>
    <message>
        <source>Wechat ID</source>
        <extracomment>The name by which a person can be found there.</extracomment>
        <translation>WeChat ID</translation>
    </message>
    <message>
        <source>WXID</source>
        <extracomment>The inner name of an account; not to be translated.</extracomment>
        <translation>WXID</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>地域</translation>
    </message>
    <message>
        <source>What&apos;s Up</source>
        <extracomment>A line that a person shows beside the name.</extracomment>
        <translation>ひとこと</translation>
    </message>
    <message>
        <source>mobile</source>
        <extracomment>Label of a telephone number.</extracomment>
        <translation>携帯電話</translation>
    </message>
    <message>
        <source>iPhone</source>
        <translation>iPhone</translation>
    </message>
    <message>
        <source>home</source>
        <extracomment>Label of a number, an address and the like.</extracomment>
        <translation>自宅</translation>
    </message>
    <message>
        <source>work</source>
        <extracomment>Label of a number, an address and the like.</extracomment>
        <translation>職場</translation>
    </message>
    <message>
        <source>anniversary</source>
        <extracomment>Label of a date: a day that returns each year, not a birthday.</extracomment>
        <translation>記念日</translation>
    </message>
    <message>
        <source>other</source>
        <extracomment>Label of a number, an address and the like.</extracomment>
        <translation>その他</translation>
    </message>
    <message>
        <source>main</source>
        <extracomment>Label of a telephone number.</extracomment>
        <translation>代表</translation>
    </message>
    <message>
        <source>other fax</source>
        <translation>その他のFAX</translation>
    </message>
    <message>
        <source>home fax</source>
        <translation>自宅FAX</translation>
    </message>
    <message>
        <source>work fax</source>
        <translation>職場FAX</translation>
    </message>
    <message>
        <source>pager</source>
        <translation>ポケットベル</translation>
    </message>
    <message>
        <source>home page</source>
        <extracomment>Label of a web address.</extracomment>
        <translation>ホームページ</translation>
    </message>
    <message>
        <source>mother</source>
        <translation>母</translation>
    </message>
    <message>
        <source>father</source>
        <translation>父</translation>
    </message>
    <message>
        <source>parent</source>
        <extracomment>Mother or father.</extracomment>
        <translation>親</translation>
    </message>
    <message>
        <source>brother</source>
        <translation>兄弟</translation>
    </message>
    <message>
        <source>sister</source>
        <translation>姉妹</translation>
    </message>
    <message>
        <source>child</source>
        <translation>子供</translation>
    </message>
    <message>
        <source>friend</source>
        <extracomment>A woman or a man.</extracomment>
        <translation>友人</translation>
    </message>
    <message>
        <source>spouse</source>
        <translation>配偶者</translation>
    </message>
    <message>
        <source>partner</source>
        <extracomment>A woman or a man with whom somebody lives.</extracomment>
        <translation>パートナー</translation>
    </message>
    <message>
        <source>assistant</source>
        <extracomment>A person at work.</extracomment>
        <translation>アシスタント</translation>
    </message>
    <message>
        <source>manager</source>
        <extracomment>A person at work.</extracomment>
        <translation>上司</translation>
    </message>
    <message>
        <source>Twitter</source>
        <translation>Twitter</translation>
    </message>
    <message>
        <source>Facebook</source>
        <translation>Facebook</translation>
    </message>
    <message>
        <source>Flickr</source>
        <translation>Flickr</translation>
    </message>
    <message>
        <source>LinkedIn</source>
        <translation>LinkedIn</translation>
    </message>
    <message>
        <source>Myspace</source>
        <translation>Myspace</translation>
    </message>
    <message>
        <source>Sina Weibo</source>
        <translation>Sina Weibo</translation>
    </message>
    <message>
        <source>birthday</source>
        <extracomment>Label of a date.</extracomment>
        <translation>誕生日</translation>
    </message>
    <message>
        <source>School</source>
        <translation>学校</translation>
    </message>
    <message>
        <source>Elder Brother</source>
        <translation>兄</translation>
    </message>
    <message>
        <source>Elder Sister</source>
        <translation>姉</translation>
    </message>
    <message>
        <source>Younger Brother</source>
        <translation>弟</translation>
    </message>
    <message>
        <source>Younger Sister</source>
        <translation>妹</translation>
    </message>
    <message>
        <source>Husband</source>
        <translation>夫</translation>
    </message>
    <message>
        <source>Wife</source>
        <translation>妻</translation>
    </message>
    <message>
        <source>Son</source>
        <translation>息子</translation>
    </message>
    <message>
        <source>Daughter</source>
        <translation>娘</translation>
    </message>
    <message>
        <source>Colleague</source>
        <translation>同僚</translation>
    </message>
    <message>
        <source>Address</source>
        <extracomment>A postal address.</extracomment>
        <translation>住所</translation>
    </message>
    <message>
        <source>URL</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>Related Name</source>
        <extracomment>A person who belongs to this one: mother, assistant and so on.</extracomment>
        <translation>関係者の名前</translation>
    </message>
    <message>
        <source>Social Profile</source>
        <translation>ソーシャルプロフィール</translation>
    </message>
    <message>
        <source>Instant Message</source>
        <extracomment>Heading over accounts of messengers.</extracomment>
        <translation>インスタントメッセージ</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>誕生日</translation>
    </message>
    <message>
        <source>Notes</source>
        <extracomment>Heading: what was noted on a contact or on a reminder.</extracomment>
        <translation>メモ</translation>
    </message>
    <message>
        <source>Reading List</source>
        <extracomment>Pages to be read later, in the browser.</extracomment>
        <translation>リーディングリスト</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>Pages that were visited, in the browser.</extracomment>
        <translation>履歴</translation>
    </message>
    <message>
        <source>Locked</source>
        <extracomment>Of a note that only its password opens.</extracomment>
        <translation>ロック中</translation>
    </message>
    <message>
        <source>You</source>
        <extracomment>Who did something: stands for %1 in the lines below.</extracomment>
        <translation>あなた</translation>
    </message>
    <message>
        <source>you</source>
        <extracomment>Who was added or removed: stands for %2 in two of the lines below.</extracomment>
        <translation>あなた</translation>
    </message>
    <message>
        <source>Someone</source>
        <extracomment>Stands for a person without name and number.</extracomment>
        <translation>誰か</translation>
    </message>
    <message>
        <source>a message</source>
        <extracomment>What a reaction is about.</extracomment>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>an attachment</source>
        <extracomment>What a reaction is about.</extracomment>
        <translation>添付ファイル</translation>
    </message>
    <message>
        <source>%1 edited the message. Before: %2</source>
        <extracomment>%1 may be &quot;You&quot;; %2 is what the message said, in quotation marks.</extracomment>
        <translation>%1がメッセージを編集しました。編集前：%2</translation>
    </message>
    <message>
        <source>%1 placed a sticker on %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1が%2にステッカーを貼りました</translation>
    </message>
    <message>
        <source>%1 loved %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;. A heart on a message.</extracomment>
        <translation>%1が%2にハートを付けました</translation>
    </message>
    <message>
        <source>%1 liked %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1が%2に「いいね」を付けました</translation>
    </message>
    <message>
        <source>%1 disliked %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1が%2に「よくないね」を付けました</translation>
    </message>
    <message>
        <source>%1 laughed at %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1が%2に笑いました</translation>
    </message>
    <message>
        <source>%1 emphasized %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;. Exclamation marks on a message.</extracomment>
        <translation>%1が%2を強調しました</translation>
    </message>
    <message>
        <source>%1 questioned %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;. A question mark on a message.</extracomment>
        <translation>%1が%2に「？」を付けました</translation>
    </message>
    <message>
        <source>%1 reacted with a sticker to %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1が%2にステッカーでリアクションしました</translation>
    </message>
    <message>
        <source>%1 voted on %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;. %2 is a poll.</extracomment>
        <translation>%1が%2に投票しました</translation>
    </message>
    <message>
        <source>%1 reacted with %2 to %3</source>
        <extracomment>%1 is a name, or &quot;You&quot;. %2 is an emoji.</extracomment>
        <translation>%1が%3に%2でリアクションしました</translation>
    </message>
    <message>
        <source>%1 reacted to %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1が%2にリアクションしました</translation>
    </message>
    <message>
        <source>%1 removed %2 from the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;. %2 is a name, or &quot;you&quot;.</extracomment>
        <translation>%1が%2をチャットから削除しました</translation>
    </message>
    <message>
        <source>%1 changed the phone number</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1が電話番号を変更しました</translation>
    </message>
    <message>
        <source>%1 added %2 to the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;. %2 is a name, or &quot;you&quot;.</extracomment>
        <translation>%1が%2をチャットに追加しました</translation>
    </message>
    <message>
        <source>%1 removed the name of the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1がチャットの名前を削除しました</translation>
    </message>
    <message>
        <source>%1 named the conversation %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;. %2 is the new name, in quotation marks.</extracomment>
        <translation>%1がチャットに%2という名前を付けました</translation>
    </message>
    <message>
        <source>%1 left the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1がチャットから退出しました</translation>
    </message>
    <message>
        <source>%1 changed the group photo</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1がグループの写真を変更しました</translation>
    </message>
    <message>
        <source>%1 removed the group photo</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1がグループの写真を削除しました</translation>
    </message>
    <message>
        <source>%1 changed the background of the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1がチャットの背景を変更しました</translation>
    </message>
    <message>
        <source>%1 removed the background of the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1がチャットの背景を削除しました</translation>
    </message>
    <message>
        <source>%1 changed the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1がチャットを変更しました</translation>
    </message>
    <message>
        <source>%1 started sharing the location</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1が位置情報の共有を開始しました</translation>
    </message>
    <message>
        <source>%1 stopped sharing the location</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1が位置情報の共有を停止しました</translation>
    </message>
    <message>
        <source>%1 kept an audio message</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1がオーディオメッセージを保存しました</translation>
    </message>
    <message>
        <source>%1 started a call or a shared activity</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1が通話または共有アクティビティを開始しました</translation>
    </message>
    <message>
        <source>%1 unsent a message</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1がメッセージの送信を取り消しました</translation>
    </message>
    <message>
        <source>Handwritten message</source>
        <translation>手書きメッセージ</translation>
    </message>
    <message>
        <source>Digital Touch message</source>
        <extracomment>Digital Touch is a name.</extracomment>
        <translation>Digital Touchメッセージ</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>支払い</translation>
    </message>
    <message>
        <source>Location</source>
        <extracomment>A message that tells where somebody is.</extracomment>
        <translation>位置情報</translation>
    </message>
    <message>
        <source>Fitness message</source>
        <extracomment>From the app that counts steps and training.</extracomment>
        <translation>フィットネスのメッセージ</translation>
    </message>
    <message>
        <source>Shared photos</source>
        <translation>共有された写真</translation>
    </message>
    <message>
        <source>Check In</source>
        <extracomment>An app tells others that somebody has arrived safely.</extracomment>
        <translation>到着確認</translation>
    </message>
    <message>
        <source>Poll</source>
        <translation>投票</translation>
    </message>
    <message>
        <source>App message</source>
        <translation>アプリのメッセージ</translation>
    </message>
    <message>
        <source>One attachment was never downloaded to the phone.</source>
        <translation>1個の添付ファイルは電話にダウンロードされていません。</translation>
    </message>
    <message>
        <source>%1 attachments were never downloaded to the phone.</source>
        <extracomment>%1 is 2 or more.</extracomment>
        <translation>%1個の添付ファイルは電話にダウンロードされていません。</translation>
    </message>
    <message>
        <source>%1: the table of conversations is damaged (%2); some messages may be missing.</source>
        <extracomment>%1 is a file, %2 what the database says.</extracomment>
        <translation>%1：会話の表が破損しています（%2）。一部のメッセージが欠けている可能性があります。</translation>
    </message>
    <message>
        <source>%1: some messages cannot be read, the database is damaged (%2).</source>
        <extracomment>%1 is a file, %2 what the database says.</extracomment>
        <translation>%1：一部のメッセージを読み取れません。データベースが破損しています（%2）。</translation>
    </message>
    <message>
        <source>The backup has no %1.</source>
        <extracomment>%1 is a file.</extracomment>
        <translation>バックアップに%1がありません。</translation>
    </message>
    <message>
        <source>%1 of the backup is not of a kind that can be read.</source>
        <extracomment>%1 is a file.</extracomment>
        <translation>バックアップの%1は読み取れる種類のファイルではありません。</translation>
    </message>
    <message>
        <source>this is no database of a kind that can be read; it has the tables %1</source>
        <extracomment>Follows the name of the file and a colon; %1 is a list of names.</extracomment>
        <translation>読み取れる種類のデータベースではありません。含まれる表：%1</translation>
    </message>
    <message>
        <source>Number</source>
        <extracomment>Column: a phone number or e-mail address.</extracomment>
        <translation>番号</translation>
    </message>
    <message>
        <source>Duration</source>
        <extracomment>Column: how long a call was.</extracomment>
        <translation>通話時間</translation>
    </message>
    <message>
        <source>Service</source>
        <extracomment>Column: what carried a call, such as Phone or FaceTime Audio.</extracomment>
        <translation>サービス</translation>
    </message>
    <message>
        <source>Incoming</source>
        <extracomment>Type of a call.</extracomment>
        <translation>着信</translation>
    </message>
    <message>
        <source>Outgoing</source>
        <extracomment>Type of a call.</extracomment>
        <translation>発信</translation>
    </message>
    <message>
        <source>Missed</source>
        <extracomment>Type of a call: nobody answered it.</extracomment>
        <translation>不在着信</translation>
    </message>
    <message>
        <source>Missed voice call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>不在着信(音声通話)</translation>
    </message>
    <message>
        <source>Missed video call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>不在着信(ビデオ通話)</translation>
    </message>
    <message>
        <source>Incoming voice call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>着信(音声通話)</translation>
    </message>
    <message>
        <source>Incoming video call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>着信(ビデオ通話)</translation>
    </message>
    <message>
        <source>Outgoing voice call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>発信(音声通話)</translation>
    </message>
    <message>
        <source>Outgoing video call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>発信(ビデオ通話)</translation>
    </message>
    <message>
        <source>[Unknown message]</source>
        <extracomment>A line in a chat: a message of a kind that cannot be shown.</extracomment>
        <translation>[不明なメッセージ]</translation>
    </message>
    <message>
        <source>[System message]</source>
        <extracomment>A line in a chat that the chat program itself wrote.</extracomment>
        <translation>[システムメッセージ]</translation>
    </message>
    <message>
        <source>[Sticker]</source>
        <extracomment>In a chat, for a sticker whose picture is not there.</extracomment>
        <translation>[スタンプ]</translation>
    </message>
    <message>
        <source>[Album]</source>
        <extracomment>In a chat, for an album of pictures that is not there itself.</extracomment>
        <translation>[アルバム]</translation>
    </message>
    <message>
        <source>[Album or post]</source>
        <extracomment>In a chat, for what cannot be shown itself.</extracomment>
        <translation>[アルバムまたは投稿]</translation>
    </message>
    <message>
        <source>[Contact]</source>
        <extracomment>In a chat, for the card of a contact of which nothing is known.</extracomment>
        <translation>[連絡先]</translation>
    </message>
    <message>
        <source>[Call]</source>
        <extracomment>A line in a chat: a call of which nothing is known.</extracomment>
        <translation>[通話]</translation>
    </message>
    <message>
        <source>%1 Video</source>
        <extracomment>Service of a call: %1 is the name of an app.</extracomment>
        <translation>%1ビデオ</translation>
    </message>
    <message>
        <source>A message was recalled</source>
        <extracomment>A line in a chat: its sender took a message back.</extracomment>
        <translation>メッセージが取り消されました</translation>
    </message>
    <message>
        <source>Friend request from %1</source>
        <extracomment>A line in a chat. %1: a name.</extracomment>
        <translation>%1からの友達リクエスト</translation>
    </message>
    <message>
        <source>Live location</source>
        <extracomment>In a chat, for a place that was shared for a while.</extracomment>
        <translation>位置情報のライブ共有</translation>
    </message>
    <message>
        <source>Other app</source>
        <extracomment>Service of a call: an app that is not known by name.</extracomment>
        <translation>その他のアプリ</translation>
    </message>
    <message>
        <source>FaceTime Audio</source>
        <extracomment>Service of a call.</extracomment>
        <translation>FaceTimeオーディオ</translation>
    </message>
    <message>
        <source>FaceTime Video</source>
        <extracomment>Service of a call.</extracomment>
        <translation>FaceTimeビデオ</translation>
    </message>
    <message>
        <source>Title</source>
        <extracomment>Column: of a reminder, of a note or of a web page.</extracomment>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>List</source>
        <extracomment>Column: the list in which a reminder stands.</extracomment>
        <translation>リスト</translation>
    </message>
    <message>
        <source>Due date</source>
        <extracomment>Column: when a reminder is due.</extracomment>
        <translation>期限</translation>
    </message>
    <message>
        <source>Completed</source>
        <extracomment>Column: when a reminder was completed, or Yes.</extracomment>
        <translation>完了</translation>
    </message>
    <message>
        <source>Priority</source>
        <extracomment>Column: High, Medium or Low.</extracomment>
        <translation>優先順位</translation>
    </message>
    <message>
        <source>Marks</source>
        <extracomment>Column of a table of reminders: Flagged, Repeats or both.</extracomment>
        <translation>マーク</translation>
    </message>
    <message>
        <source>Starts</source>
        <extracomment>Column: when an event begins.</extracomment>
        <translation>開始</translation>
    </message>
    <message>
        <source>Ends</source>
        <extracomment>Column: when an event ends.</extracomment>
        <translation>終了</translation>
    </message>
    <message>
        <source>Calendar</source>
        <extracomment>Column: the calendar that an event belongs to; also the name of the one that each phone has.</extracomment>
        <translation>カレンダー</translation>
    </message>
    <message>
        <source>Every day</source>
        <extracomment>How often an event comes again.</extracomment>
        <translation>毎日</translation>
    </message>
    <message>
        <source>Every week</source>
        <extracomment>How often an event comes again.</extracomment>
        <translation>毎週</translation>
    </message>
    <message>
        <source>Every month</source>
        <extracomment>How often an event comes again.</extracomment>
        <translation>毎月</translation>
    </message>
    <message>
        <source>Every year</source>
        <extracomment>How often an event comes again.</extracomment>
        <translation>毎年</translation>
    </message>
    <message>
        <source>Every %1 days</source>
        <extracomment>%1 is a number from 2 on.</extracomment>
        <translation>%1日ごと</translation>
    </message>
    <message>
        <source>Every %1 weeks</source>
        <extracomment>%1 is a number from 2 on.</extracomment>
        <translation>%1週間ごと</translation>
    </message>
    <message>
        <source>Every %1 months</source>
        <extracomment>%1 is a number from 2 on.</extracomment>
        <translation>%1か月ごと</translation>
    </message>
    <message>
        <source>Every %1 years</source>
        <extracomment>%1 is a number from 2 on.</extracomment>
        <translation>%1年ごと</translation>
    </message>
    <message>
        <source>%1 until
%2</source>
        <extracomment>How often and up to which day an event comes again: Every week until 2024-07-16.</extracomment>
        <translation>%1 終了日
%2</translation>
    </message>
    <message>
        <source>Attendees: %1</source>
        <extracomment>Line of the details of an event: the names of those who take part.</extracomment>
        <translation>出席者: %1</translation>
    </message>
    <message>
        <source>Alert: %1</source>
        <extracomment>Line of the details of an event: when the phone rings for it.</extracomment>
        <translation>通知: %1</translation>
    </message>
    <message>
        <source>Details</source>
        <extracomment>Column: what else there is to an event, such as attendees and alerts.</extracomment>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Accepted</source>
        <extracomment>Answer to an invitation, beside a name or as a mark of an event.</extracomment>
        <translation>出席</translation>
    </message>
    <message>
        <source>Declined</source>
        <extracomment>Answer to an invitation, beside a name or as a mark of an event.</extracomment>
        <translation>欠席</translation>
    </message>
    <message>
        <source>Maybe</source>
        <extracomment>Answer to an invitation, beside a name or as a mark of an event.</extracomment>
        <translation>仮承諾</translation>
    </message>
    <message>
        <source>Organizer</source>
        <extracomment>Beside the name of the person who invites to an event.</extracomment>
        <translation>主催者</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <extracomment>Mark of an event that does not take place.</extracomment>
        <translation>中止</translation>
    </message>
    <message>
        <source>Tentative</source>
        <extracomment>Mark of an event that is not yet certain.</extracomment>
        <translation>仮の予定</translation>
    </message>
    <message>
        <source>Invitation</source>
        <extracomment>Mark of an event that the owner of the phone was invited to and has not answered.</extracomment>
        <translation>招待</translation>
    </message>
    <message>
        <source>Flagged</source>
        <extracomment>Mark of a reminder: the owner flagged it.</extracomment>
        <translation>フラグ付き</translation>
    </message>
    <message>
        <source>Repeats</source>
        <extracomment>Mark of a reminder: it comes again. Also the column that tells how often an event does.</extracomment>
        <translation>繰り返し</translation>
    </message>
    <message>
        <source>High</source>
        <extracomment>Priority of a reminder.</extracomment>
        <translation>高</translation>
    </message>
    <message>
        <source>Medium</source>
        <extracomment>Priority of a reminder.</extracomment>
        <translation>中</translation>
    </message>
    <message>
        <source>Low</source>
        <extracomment>Priority of a reminder.</extracomment>
        <translation>低</translation>
    </message>
    <message>
        <source>Yes</source>
        <extracomment>In the column Completed: a reminder of which nobody knows when.</extracomment>
        <translation>はい</translation>
    </message>
    <message>
        <source>Reminders</source>
        <extracomment>Name of the list of reminders that each phone has.</extracomment>
        <translation>リマインダー</translation>
    </message>
    <message>
        <source>Folder</source>
        <extracomment>Column: the folder of a note.</extracomment>
        <translation>フォルダ</translation>
    </message>
    <message>
        <source>Created</source>
        <extracomment>Column: when a note was begun.</extracomment>
        <translation>作成日</translation>
    </message>
    <message>
        <source>Modified</source>
        <extracomment>Column: when a note was changed.</extracomment>
        <translation>変更日</translation>
    </message>
    <message>
        <source>Recently Deleted</source>
        <extracomment>The folder of deleted notes.</extracomment>
        <translation>最近削除した項目</translation>
    </message>
    <message>
        <source>Attachment</source>
        <extracomment>Stands in a note for an attachment without a name.</extracomment>
        <translation>添付ファイル</translation>
    </message>
    <message>
        <source>Drawing</source>
        <extracomment>The name of a drawing in a note that has none of its own; becomes a file name.</extracomment>
        <translation>描画</translation>
    </message>
    <message>
        <source>Scan</source>
        <extracomment>The name of scanned pages in a note that have none of their own; becomes a file name.</extracomment>
        <translation>スキャン書類</translation>
    </message>
    <message>
        <source>Web address</source>
        <extracomment>Column: the address of a web page.</extracomment>
        <translation>Webアドレス</translation>
    </message>
    <message>
        <source>Label</source>
        <extracomment>Column: what stands before a link, a date or the name of a site.</extracomment>
        <translation>ラベル</translation>
    </message>
    <message>
        <source>The note “%1” names an attachment that its store does not have.</source>
        <extracomment>%1 is the title of a note.</extracomment>
        <translation>メモ「%1」の添付ファイルがデータベースにありません。</translation>
    </message>
    <message>
        <source>%1 more notes name attachments that their store does not have.</source>
        <translation>ほかに%1件のメモの添付ファイルがデータベースにありません。</translation>
    </message>
    <message>
        <source>A table in the note “%1” cannot be read: %2</source>
        <extracomment>%1 is the title of a note. %2 is the reason.</extracomment>
        <translation>メモ「%1」の表を読み取れません：%2</translation>
    </message>
    <message>
        <source>%1 more notes have tables that cannot be read.</source>
        <translation>ほかに%1件のメモに読み取れない表があります。</translation>
    </message>
    <message>
        <source>The text of the note “%1” cannot be read: %2</source>
        <extracomment>%1 is the title of a note. %2 is the reason.</extracomment>
        <translation>メモ「%1」の本文を読み取れません：%2</translation>
    </message>
    <message>
        <source>%1 more notes have texts that cannot be read.</source>
        <translation>ほかに%1件のメモの本文を読み取れません。</translation>
    </message>
    <message>
        <source>The backup has no file “%1” of the note “%2”.</source>
        <translation>バックアップにメモ「%2」のファイル「%1」がありません。</translation>
    </message>
    <message>
        <source>%1 more files of notes are missing in the backup.</source>
        <translation>ほかに%1個のメモのファイルがバックアップにありません。</translation>
    </message>
    <message>
        <source>One note was never downloaded to the phone.</source>
        <translation>1件のメモは電話にダウンロードされていません。</translation>
    </message>
    <message>
        <source>%1 notes were never downloaded to the phone.</source>
        <extracomment>%1 is 2 or more.</extracomment>
        <translation>%1件のメモは電話にダウンロードされていません。</translation>
    </message>
    <message>
        <source>One attachment of a locked note cannot be read.</source>
        <translation>ロックされたメモの添付ファイル1個を読み取れません。</translation>
    </message>
    <message>
        <source>%1 attachments of locked notes cannot be read.</source>
        <extracomment>%1 is 2 or more.</extracomment>
        <translation>ロックされたメモの添付ファイル%1個を読み取れません。</translation>
    </message>
    <message>
        <source>%1 has no column %2; it is read as empty.</source>
        <extracomment>%1 is a file, a database.</extracomment>
        <translation>%1に列%2がありません。空として読み込みます。</translation>
    </message>
    <message>
        <source>%1 is damaged; what can be read of it is there.</source>
        <extracomment>%1 is a file, a database.</extracomment>
        <translation>%1は壊れています。読み取れた分だけがあります。</translation>
    </message>
    <message>
        <source>%1 has no table %2.</source>
        <extracomment>%1 is a file, a database.</extracomment>
        <translation>%1に表%2がありません。</translation>
    </message>
    <message>
        <source>the store is damaged</source>
        <extracomment>A reason, after a colon.</extracomment>
        <translation>データベースが破損しています</translation>
    </message>
    <message>
        <source>No Name</source>
        <extracomment>Stands for the name of a contact that has none.</extracomment>
        <translation>名前なし</translation>
    </message>
    <message>
        <source>Chinese birthday</source>
        <extracomment>Label of a date.</extracomment>
        <translation>誕生日（中国暦）</translation>
    </message>
    <message>
        <source>Hebrew birthday</source>
        <extracomment>Label of a date.</extracomment>
        <translation>誕生日（ヘブライ暦）</translation>
    </message>
    <message>
        <source>Islamic birthday</source>
        <extracomment>Label of a date.</extracomment>
        <translation>誕生日（イスラム暦）</translation>
    </message>
    <message>
        <source>Month %1, day %2</source>
        <extracomment>A day of the Chinese calendar; the year may follow after a comma.</extracomment>
        <translation>%1月%2日</translation>
    </message>
    <message>
        <source>Leap month %1, day %2</source>
        <extracomment>A day of the Chinese calendar, in a month that comes twice in its year.</extracomment>
        <translation>閏%1月%2日</translation>
    </message>
    <message>
        <source>%1 added %2 to the community</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1が%2をコミュニティに追加しました</translation>
    </message>
    <message>
        <source>%1 was added to the community</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1がコミュニティに追加されました</translation>
    </message>
    <message>
        <source>%1 was added to the conversation</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1がチャットに追加されました</translation>
    </message>
    <message>
        <source>%1 was removed from the conversation</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1がチャットから削除されました</translation>
    </message>
    <message>
        <source>%1 created the group</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1がグループを作成しました</translation>
    </message>
    <message>
        <source>%1 joined by a link</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1がリンクから参加しました</translation>
    </message>
    <message>
        <source>%1 joined by an invitation</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1が招待により参加しました</translation>
    </message>
    <message>
        <source>%1 joined from the community</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1がコミュニティから参加しました</translation>
    </message>
    <message>
        <source>%1 made %2 an admin</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1が%2を管理者にしました</translation>
    </message>
    <message>
        <source>%1 is now an admin</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1が管理者になりました</translation>
    </message>
    <message>
        <source>You are now an admin</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>あなたは管理者になりました</translation>
    </message>
    <message>
        <source>You are no longer an admin</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>あなたは管理者ではなくなりました</translation>
    </message>
    <message>
        <source>%1 changed the group description</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1がグループの説明を変更しました</translation>
    </message>
    <message>
        <source>%1 deleted the group description</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1がグループの説明を削除しました</translation>
    </message>
    <message>
        <source>%1 allowed only admins to edit the group</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1がグループの編集を管理者のみに許可しました</translation>
    </message>
    <message>
        <source>%1 allowed all members to edit the group</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1がグループの編集を全員に許可しました</translation>
    </message>
    <message>
        <source>%1 allowed only admins to send messages</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1がメッセージの送信を管理者のみに許可しました</translation>
    </message>
    <message>
        <source>%1 allowed all members to send messages</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1がメッセージの送信を全員に許可しました</translation>
    </message>
    <message>
        <source>%1 allowed only admins to add members</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1がメンバーの追加を管理者のみに許可しました</translation>
    </message>
    <message>
        <source>%1 changed disappearing messages</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1が消えるメッセージの設定を変更しました</translation>
    </message>
    <message>
        <source>%1 turned off disappearing messages</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1が消えるメッセージをオフにしました</translation>
    </message>
    <message>
        <source>%1 made messages disappear after %2 hours</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a number, 2 or more.</extracomment>
        <translation>%1がメッセージを%2時間後に消えるようにしました</translation>
    </message>
    <message>
        <source>%1 made messages disappear after %2 days</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a number, 2 or more.</extracomment>
        <translation>%1がメッセージを%2日後に消えるようにしました</translation>
    </message>
    <message>
        <source>%1 deleted a message</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1がメッセージを削除しました</translation>
    </message>
    <message>
        <source>A message of %1 has not arrived yet</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1からのメッセージがまだ届いていません</translation>
    </message>
    <message>
        <source>The security code of %1 changed</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1のセキュリティコードが変わりました</translation>
    </message>
    <message>
        <source>%1 was blocked</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1がブロックされました</translation>
    </message>
    <message>
        <source>%1 was unblocked</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1のブロックが解除されました</translation>
    </message>
    <message>
        <source>Messages and calls are encrypted from end to end</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>メッセージと通話はエンドツーエンドで暗号化されています</translation>
    </message>
    <message>
        <source>Notice about a business account</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>ビジネスアカウントについてのお知らせ</translation>
    </message>
    <message>
        <source>Group call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>グループ通話</translation>
    </message>
    <message>
        <source>Call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>通話</translation>
    </message>
    <message>
        <source>The channel was created</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>チャンネルが作成されました</translation>
    </message>
    <message>
        <source>The privacy of the channel changed</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>チャンネルのプライバシー設定が変更されました</translation>
    </message>
    <message>
        <source>The channel was changed</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>チャンネルが変更されました</translation>
    </message>
    <message>
        <source>Message of a business</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>企業からのメッセージ</translation>
    </message>
    <message>
        <source>Invitation to a group</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>グループへの招待</translation>
    </message>
    <message>
        <source>Product</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>商品</translation>
    </message>
    <message>
        <source>Album</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>アルバム</translation>
    </message>
    <message>
        <source>Voice message</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>音声メッセージ</translation>
    </message>
    <message>
        <source>Contact card</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>連絡先</translation>
    </message>
    <message>
        <source>Document</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>書類</translation>
    </message>
    <message>
        <source>Forwarded</source>
        <extracomment>Stands above a message that was written by somebody else.</extracomment>
        <translation>転送済み</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>Title of the chat with the short-lived posts of all people.</extracomment>
        <translation>ステータス</translation>
    </message>
    <message>
        <source>%1: files of messages that are not in the backup: %2</source>
        <extracomment>A remark on a backup: %1 is the name of a database. %2 is a number.</extracomment>
        <translation>%1：バックアップにないメッセージのファイル：%2</translation>
    </message>
    <message>
        <source>Albums</source>
        <extracomment>Column: the albums that a photo is in.</extracomment>
        <translation>アルバム</translation>
    </message>
    <message>
        <source>Photo</source>
        <extracomment>Type of a picture of the camera roll.</extracomment>
        <translation>写真</translation>
    </message>
    <message>
        <source>Video</source>
        <extracomment>Type of a film of the camera roll.</extracomment>
        <translation>ビデオ</translation>
    </message>
    <message>
        <source>Panorama</source>
        <extracomment>Type of a photo.</extracomment>
        <translation>パノラマ</translation>
    </message>
    <message>
        <source>Live Photo</source>
        <extracomment>Type of a photo: a picture with a short film.</extracomment>
        <translation>Live Photos</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <extracomment>Type of a photo.</extracomment>
        <translation>スクリーンショット</translation>
    </message>
    <message>
        <source>Slow motion</source>
        <extracomment>Type of a film.</extracomment>
        <translation>スローモーション</translation>
    </message>
    <message>
        <source>Time-lapse</source>
        <extracomment>Type of a film.</extracomment>
        <translation>タイムラプス</translation>
    </message>
    <message>
        <source>Favourite</source>
        <extracomment>Mark of a photo.</extracomment>
        <translation>お気に入り</translation>
    </message>
    <message>
        <source>Hidden</source>
        <extracomment>Mark of a photo that the phone shows in the album of hidden ones only.</extracomment>
        <translation>非表示</translation>
    </message>
    <message>
        <source>Edited</source>
        <extracomment>Mark of a photo: this is the version that its owner has edited.</extracomment>
        <translation>編集済み</translation>
    </message>
    <message>
        <source>%1 (edited)</source>
        <extracomment>Name of a file without its ending: the edited version of the photo %1.</extracomment>
        <translation>%1（編集済み）</translation>
    </message>
    <message>
        <source>Photos and videos of which the backup has small previews only: %1</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>バックアップに小さなプレビューしかない写真とビデオ: %1</translation>
    </message>
    <message>
        <source>Photos and videos of the library that are not in the backup: %1</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>バックアップにないライブラリの写真とビデオ: %1</translation>
    </message>
    <message>
        <source>Recordings that are not in the backup: %1</source>
        <extracomment>%1 is a number; voice memos, or messages on the answering machine.</extracomment>
        <translation>バックアップにない録音: %1</translation>
    </message>
    <message>
        <source>App</source>
        <extracomment>Column: the app that a file belongs to.</extracomment>
        <translation>アプリ</translation>
    </message>
    <message>
        <source>Place</source>
        <extracomment>Column: the directory of an app&apos;s file; of an event, where it takes place.</extracomment>
        <translation>場所</translation>
    </message>
</context>
<context>
    <name>ExportCSVFile_Google</name>
    <message>
        <source>for Google</source>
        <extracomment>End of a file name: &quot;Anna&apos;s Contacts for Google&quot;.</extracomment>
        <translation>Google 用</translation>
    </message>
</context>
<context>
    <name>ExportCSVFile_Outlook</name>
    <message>
        <source>for Outlook</source>
        <extracomment>End of a file name: &quot;Anna&apos;s Contacts for Outlook&quot;.</extracomment>
        <translation>Outlook 用</translation>
    </message>
</context>
<context>
    <name>ExportVCFFile</name>
    <message>
        <source>for iCloud</source>
        <extracomment>End of a file name: &quot;Anna&apos;s Contacts for iCloud&quot;.</extracomment>
        <translation>iCloud 用</translation>
    </message>
    <message>
        <source>for Mac</source>
        <extracomment>End of a file name: &quot;Anna&apos;s Contacts for Mac&quot;.</extracomment>
        <translation>Mac 用</translation>
    </message>
</context>
</TS>

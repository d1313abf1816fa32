<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>DataExport</name>
    <message>
        <source>%1&apos;s %2</source>
        <extracomment>Title of a page: %1 is a person&apos;s name, %2 the name of a category, such as Messages.</extracomment>
        <translation>%2 - %1</translation>
    </message>
    <message>
        <source>in common use</source>
        <extracomment>Part of a file name, after the category: contacts in a form that any program reads.</extracomment>
        <translation>للاستخدام العام</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>الهاتف</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>البريد الإلكتروني</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>التاريخ</translation>
    </message>
    <message>
        <source>Type</source>
        <extracomment>Column: whether a message was sent or received, or a call came in or went out.</extracomment>
        <translation>النوع</translation>
    </message>
    <message>
        <source>Content</source>
        <extracomment>Column: the text of a message or of a note.</extracomment>
        <translation>المحتوى</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>A message whose sending was never completed, or a conversation or a caller without a name.</extracomment>
        <translation>غير معروف</translation>
    </message>
    <message>
        <source>Sent</source>
        <extracomment>Of a message.</extracomment>
        <translation>مُرسَلة</translation>
    </message>
    <message>
        <source>Received</source>
        <extracomment>Of a message.</extracomment>
        <translation>مُستلَمة</translation>
    </message>
    <message>
        <source>Name: %1</source>
        <translation>الاسم: %1</translation>
    </message>
    <message>
        <source>Phone: %1</source>
        <translation>الهاتف: %1</translation>
    </message>
    <message>
        <source>Email: %1</source>
        <translation>البريد الإلكتروني: %1</translation>
    </message>
    <message>
        <source>Date: %1</source>
        <translation>التاريخ: %1</translation>
    </message>
    <message>
        <source>Chat</source>
        <extracomment>Column: the name of a conversation.</extracomment>
        <translation>الدردشة</translation>
    </message>
    <message>
        <source>Chat: %1</source>
        <translation>الدردشة: %1</translation>
    </message>
    <message>
        <source>Group Event</source>
        <extracomment>Of a line in a conversation: somebody joined, left, and the like.</extracomment>
        <translation>حدث في المجموعة</translation>
    </message>
    <message>
        <source>Fail</source>
        <extracomment>Of a message that could not be sent.</extracomment>
        <translation>فشل</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>التفاصيل</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>الاسم المستعار</translation>
    </message>
    <message>
        <source>Wechat ID</source>
        <extracomment>The name by which a person can be found there.</extracomment>
        <translation>معرف WeChat</translation>
    </message>
    <message>
        <source>WXID</source>
        <extracomment>The inner name of an account; not to be translated.</extracomment>
        <translation>WXID</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>المنطقة</translation>
    </message>
    <message>
        <source>What&apos;s Up</source>
        <extracomment>A line that a person shows beside the name.</extracomment>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>mobile</source>
        <extracomment>Label of a telephone number.</extracomment>
        <translation>الجوال</translation>
    </message>
    <message>
        <source>iPhone</source>
        <translation>iPhone</translation>
    </message>
    <message>
        <source>home</source>
        <extracomment>Label of a number, an address and the like.</extracomment>
        <translation>المنزل</translation>
    </message>
    <message>
        <source>work</source>
        <extracomment>Label of a number, an address and the like.</extracomment>
        <translation>العمل</translation>
    </message>
    <message>
        <source>anniversary</source>
        <extracomment>Label of a date: a day that returns each year, not a birthday.</extracomment>
        <translation>ذكرى سنوية</translation>
    </message>
    <message>
        <source>other</source>
        <extracomment>Label of a number, an address and the like.</extracomment>
        <translation>آخر</translation>
    </message>
    <message>
        <source>main</source>
        <extracomment>Label of a telephone number.</extracomment>
        <translation>الرئيسي</translation>
    </message>
    <message>
        <source>other fax</source>
        <translation>فاكس آخر</translation>
    </message>
    <message>
        <source>home fax</source>
        <translation>فاكس المنزل</translation>
    </message>
    <message>
        <source>work fax</source>
        <translation>فاكس العمل</translation>
    </message>
    <message>
        <source>pager</source>
        <translation>جهاز النداء</translation>
    </message>
    <message>
        <source>home page</source>
        <extracomment>Label of a web address.</extracomment>
        <translation>الصفحة الرئيسية</translation>
    </message>
    <message>
        <source>mother</source>
        <translation>الأم</translation>
    </message>
    <message>
        <source>father</source>
        <translation>الأب</translation>
    </message>
    <message>
        <source>parent</source>
        <extracomment>Mother or father.</extracomment>
        <translation>أحد الوالدين</translation>
    </message>
    <message>
        <source>brother</source>
        <translation>الأخ</translation>
    </message>
    <message>
        <source>sister</source>
        <translation>الأخت</translation>
    </message>
    <message>
        <source>child</source>
        <translation>الابن أو الابنة</translation>
    </message>
    <message>
        <source>friend</source>
        <extracomment>A woman or a man.</extracomment>
        <translation>صديق</translation>
    </message>
    <message>
        <source>spouse</source>
        <translation>الزوج أو الزوجة</translation>
    </message>
    <message>
        <source>partner</source>
        <extracomment>A woman or a man with whom somebody lives.</extracomment>
        <translation>الشريك</translation>
    </message>
    <message>
        <source>assistant</source>
        <extracomment>A person at work.</extracomment>
        <translation>المساعد</translation>
    </message>
    <message>
        <source>manager</source>
        <extracomment>A person at work.</extracomment>
        <translation>المدير</translation>
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
        <translation>عيد الميلاد</translation>
    </message>
    <message>
        <source>School</source>
        <translation>المدرسة</translation>
    </message>
    <message>
        <source>Elder Brother</source>
        <translation>الأخ الأكبر</translation>
    </message>
    <message>
        <source>Elder Sister</source>
        <translation>الأخت الكبرى</translation>
    </message>
    <message>
        <source>Younger Brother</source>
        <translation>الأخ الأصغر</translation>
    </message>
    <message>
        <source>Younger Sister</source>
        <translation>الأخت الصغرى</translation>
    </message>
    <message>
        <source>Husband</source>
        <translation>الزوج</translation>
    </message>
    <message>
        <source>Wife</source>
        <translation>الزوجة</translation>
    </message>
    <message>
        <source>Son</source>
        <translation>الابن</translation>
    </message>
    <message>
        <source>Daughter</source>
        <translation>الابنة</translation>
    </message>
    <message>
        <source>Colleague</source>
        <translation>الزميل</translation>
    </message>
    <message>
        <source>Address</source>
        <extracomment>A postal address.</extracomment>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>URL</source>
        <translation>عنوان الويب</translation>
    </message>
    <message>
        <source>Related Name</source>
        <extracomment>A person who belongs to this one: mother, assistant and so on.</extracomment>
        <translation>اسم ذو صلة</translation>
    </message>
    <message>
        <source>Social Profile</source>
        <translation>ملف تعريف اجتماعي</translation>
    </message>
    <message>
        <source>Instant Message</source>
        <extracomment>Heading over accounts of messengers.</extracomment>
        <translation>مراسلة فورية</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>عيد الميلاد</translation>
    </message>
    <message>
        <source>Notes</source>
        <extracomment>Heading: what was noted on a contact or on a reminder.</extracomment>
        <translation>ملاحظات</translation>
    </message>
    <message>
        <source>Reading List</source>
        <extracomment>Pages to be read later, in the browser.</extracomment>
        <translation>قائمة القراءة</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>Pages that were visited, in the browser.</extracomment>
        <translation>السجل</translation>
    </message>
    <message>
        <source>Locked</source>
        <extracomment>Of a note that only its password opens.</extracomment>
        <translation>مقفلة</translation>
    </message>
    <message>
        <source>You</source>
        <extracomment>Who did something: stands for %1 in the lines below.</extracomment>
        <translation>أنت</translation>
    </message>
    <message>
        <source>you</source>
        <extracomment>Who was added or removed: stands for %2 in two of the lines below.</extracomment>
        <translation>أنت</translation>
    </message>
    <message>
        <source>Someone</source>
        <extracomment>Stands for a person without name and number.</extracomment>
        <translation>شخص ما</translation>
    </message>
    <message>
        <source>a message</source>
        <extracomment>What a reaction is about.</extracomment>
        <translation>رسالة</translation>
    </message>
    <message>
        <source>an attachment</source>
        <extracomment>What a reaction is about.</extracomment>
        <translation>مرفق</translation>
    </message>
    <message>
        <source>%1 edited the message. Before: %2</source>
        <extracomment>%1 may be &quot;You&quot;; %2 is what the message said, in quotation marks.</extracomment>
        <translation>%1: تعديل الرسالة. قبل ذلك: %2</translation>
    </message>
    <message>
        <source>%1 placed a sticker on %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: وضع ملصق على %2</translation>
    </message>
    <message>
        <source>%1 loved %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;. A heart on a message.</extracomment>
        <translation>%1: رد فعل بقلب على %2</translation>
    </message>
    <message>
        <source>%1 liked %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: رد فعل بإبهام لأعلى على %2</translation>
    </message>
    <message>
        <source>%1 disliked %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: رد فعل بإبهام لأسفل على %2</translation>
    </message>
    <message>
        <source>%1 laughed at %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: رد فعل بالضحك على %2</translation>
    </message>
    <message>
        <source>%1 emphasized %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;. Exclamation marks on a message.</extracomment>
        <translation>%1: رد فعل بعلامة تعجب على %2</translation>
    </message>
    <message>
        <source>%1 questioned %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;. A question mark on a message.</extracomment>
        <translation>%1: رد فعل بعلامة استفهام على %2</translation>
    </message>
    <message>
        <source>%1 reacted with a sticker to %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: رد فعل بملصق على %2</translation>
    </message>
    <message>
        <source>%1 voted on %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;. %2 is a poll.</extracomment>
        <translation>%1: تصويت على %2</translation>
    </message>
    <message>
        <source>%1 reacted with %2 to %3</source>
        <extracomment>%1 is a name, or &quot;You&quot;. %2 is an emoji.</extracomment>
        <translation>%1: رد فعل %2 على %3</translation>
    </message>
    <message>
        <source>%1 reacted to %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: رد فعل على %2</translation>
    </message>
    <message>
        <source>%1 removed %2 from the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;. %2 is a name, or &quot;you&quot;.</extracomment>
        <translation>%1: إزالة عضو من المحادثة: %2</translation>
    </message>
    <message>
        <source>%1 changed the phone number</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: تغيير رقم الهاتف</translation>
    </message>
    <message>
        <source>%1 added %2 to the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;. %2 is a name, or &quot;you&quot;.</extracomment>
        <translation>%1: إضافة عضو إلى المحادثة: %2</translation>
    </message>
    <message>
        <source>%1 removed the name of the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: إزالة اسم المحادثة</translation>
    </message>
    <message>
        <source>%1 named the conversation %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;. %2 is the new name, in quotation marks.</extracomment>
        <translation>%1: تسمية المحادثة %2</translation>
    </message>
    <message>
        <source>%1 left the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: مغادرة المحادثة</translation>
    </message>
    <message>
        <source>%1 changed the group photo</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: تغيير صورة المجموعة</translation>
    </message>
    <message>
        <source>%1 removed the group photo</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: إزالة صورة المجموعة</translation>
    </message>
    <message>
        <source>%1 changed the background of the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: تغيير خلفية المحادثة</translation>
    </message>
    <message>
        <source>%1 removed the background of the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: إزالة خلفية المحادثة</translation>
    </message>
    <message>
        <source>%1 changed the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: تغيير المحادثة</translation>
    </message>
    <message>
        <source>%1 started sharing the location</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: بدء مشاركة الموقع</translation>
    </message>
    <message>
        <source>%1 stopped sharing the location</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: إيقاف مشاركة الموقع</translation>
    </message>
    <message>
        <source>%1 kept an audio message</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: الاحتفاظ برسالة صوتية</translation>
    </message>
    <message>
        <source>%1 started a call or a shared activity</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: بدء مكالمة أو نشاط مشترك</translation>
    </message>
    <message>
        <source>%1 unsent a message</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: التراجع عن إرسال رسالة</translation>
    </message>
    <message>
        <source>Handwritten message</source>
        <translation>رسالة بخط اليد</translation>
    </message>
    <message>
        <source>Digital Touch message</source>
        <extracomment>Digital Touch is a name.</extracomment>
        <translation>رسالة Digital Touch</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>دفعة</translation>
    </message>
    <message>
        <source>Location</source>
        <extracomment>A message that tells where somebody is.</extracomment>
        <translation>الموقع</translation>
    </message>
    <message>
        <source>Fitness message</source>
        <extracomment>From the app that counts steps and training.</extracomment>
        <translation>رسالة اللياقة</translation>
    </message>
    <message>
        <source>Shared photos</source>
        <translation>صور مشتركة</translation>
    </message>
    <message>
        <source>Check In</source>
        <extracomment>An app tells others that somebody has arrived safely.</extracomment>
        <translation>تسجيل الوصول</translation>
    </message>
    <message>
        <source>Poll</source>
        <translation>استطلاع</translation>
    </message>
    <message>
        <source>App message</source>
        <translation>رسالة من تطبيق</translation>
    </message>
    <message>
        <source>One attachment was never downloaded to the phone.</source>
        <translation>لم يتم تنزيل أحد المرفقات على الهاتف قط.</translation>
    </message>
    <message>
        <source>%1 attachments were never downloaded to the phone.</source>
        <extracomment>%1 is 2 or more.</extracomment>
        <translation>عدد المرفقات التي لم يتم تنزيلها على الهاتف قط: %1.</translation>
    </message>
    <message>
        <source>%1: the table of conversations is damaged (%2); some messages may be missing.</source>
        <extracomment>%1 is a file, %2 what the database says.</extracomment>
        <translation>%1: جدول المحادثات تالف (%2)؛ قد تكون بعض الرسائل مفقودة.</translation>
    </message>
    <message>
        <source>%1: some messages cannot be read, the database is damaged (%2).</source>
        <extracomment>%1 is a file, %2 what the database says.</extracomment>
        <translation>%1: تتعذر قراءة بعض الرسائل، قاعدة البيانات تالفة (%2).</translation>
    </message>
    <message>
        <source>The backup has no %1.</source>
        <extracomment>%1 is a file.</extracomment>
        <translation>النسخة الاحتياطية لا تحتوي على %1.</translation>
    </message>
    <message>
        <source>%1 of the backup is not of a kind that can be read.</source>
        <extracomment>%1 is a file.</extracomment>
        <translation>الملف %1 في النسخة الاحتياطية ليس من نوع تمكن قراءته.</translation>
    </message>
    <message>
        <source>this is no database of a kind that can be read; it has the tables %1</source>
        <extracomment>Follows the name of the file and a colon; %1 is a list of names.</extracomment>
        <translation>هذه ليست قاعدة بيانات من نوع تمكن قراءته؛ الجداول الموجودة فيها: %1</translation>
    </message>
    <message>
        <source>Number</source>
        <extracomment>Column: a phone number or e-mail address.</extracomment>
        <translation>الرقم</translation>
    </message>
    <message>
        <source>Duration</source>
        <extracomment>Column: how long a call was.</extracomment>
        <translation>المدة</translation>
    </message>
    <message>
        <source>Service</source>
        <extracomment>Column: what carried a call, such as Phone or FaceTime Audio.</extracomment>
        <translation>الخدمة</translation>
    </message>
    <message>
        <source>Incoming</source>
        <extracomment>Type of a call.</extracomment>
        <translation>واردة</translation>
    </message>
    <message>
        <source>Outgoing</source>
        <extracomment>Type of a call.</extracomment>
        <translation>صادرة</translation>
    </message>
    <message>
        <source>Missed</source>
        <extracomment>Type of a call: nobody answered it.</extracomment>
        <translation>فائتة</translation>
    </message>
    <message>
        <source>Missed voice call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>مكالمة صوتية فائتة</translation>
    </message>
    <message>
        <source>Missed video call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>مكالمة فيديو فائتة</translation>
    </message>
    <message>
        <source>Incoming voice call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>مكالمة صوتية واردة</translation>
    </message>
    <message>
        <source>Incoming video call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>مكالمة فيديو واردة</translation>
    </message>
    <message>
        <source>Outgoing voice call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>مكالمة صوتية صادرة</translation>
    </message>
    <message>
        <source>Outgoing video call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>مكالمة فيديو صادرة</translation>
    </message>
    <message>
        <source>[Unknown message]</source>
        <extracomment>A line in a chat: a message of a kind that cannot be shown.</extracomment>
        <translation>[رسالة غير معروفة]</translation>
    </message>
    <message>
        <source>[System message]</source>
        <extracomment>A line in a chat that the chat program itself wrote.</extracomment>
        <translation>[رسالة من النظام]</translation>
    </message>
    <message>
        <source>[Sticker]</source>
        <extracomment>In a chat, for a sticker whose picture is not there.</extracomment>
        <translation>[ملصق]</translation>
    </message>
    <message>
        <source>[Album]</source>
        <extracomment>In a chat, for an album of pictures that is not there itself.</extracomment>
        <translation>[ألبوم]</translation>
    </message>
    <message>
        <source>[Album or post]</source>
        <extracomment>In a chat, for what cannot be shown itself.</extracomment>
        <translation>[ألبوم أو منشور]</translation>
    </message>
    <message>
        <source>[Contact]</source>
        <extracomment>In a chat, for the card of a contact of which nothing is known.</extracomment>
        <translation>[جهة اتصال]</translation>
    </message>
    <message>
        <source>[Call]</source>
        <extracomment>A line in a chat: a call of which nothing is known.</extracomment>
        <translation>[مكالمة]</translation>
    </message>
    <message>
        <source>%1 Video</source>
        <extracomment>Service of a call: %1 is the name of an app.</extracomment>
        <translation>%1 فيديو</translation>
    </message>
    <message>
        <source>A message was recalled</source>
        <extracomment>A line in a chat: its sender took a message back.</extracomment>
        <translation>تم سحب رسالة</translation>
    </message>
    <message>
        <source>Friend request from %1</source>
        <extracomment>A line in a chat. %1: a name.</extracomment>
        <translation>طلب صداقة من %1</translation>
    </message>
    <message>
        <source>Live location</source>
        <extracomment>In a chat, for a place that was shared for a while.</extracomment>
        <translation>الموقع المباشر</translation>
    </message>
    <message>
        <source>Other app</source>
        <extracomment>Service of a call: an app that is not known by name.</extracomment>
        <translation>تطبيق آخر</translation>
    </message>
    <message>
        <source>FaceTime Audio</source>
        <extracomment>Service of a call.</extracomment>
        <translation>FaceTime صوتي</translation>
    </message>
    <message>
        <source>FaceTime Video</source>
        <extracomment>Service of a call.</extracomment>
        <translation>FaceTime فيديو</translation>
    </message>
    <message>
        <source>Title</source>
        <extracomment>Column: of a reminder, of a note or of a web page.</extracomment>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>List</source>
        <extracomment>Column: the list in which a reminder stands.</extracomment>
        <translation>القائمة</translation>
    </message>
    <message>
        <source>Due date</source>
        <extracomment>Column: when a reminder is due.</extracomment>
        <translation>تاريخ الاستحقاق</translation>
    </message>
    <message>
        <source>Completed</source>
        <extracomment>Column: when a reminder was completed, or Yes.</extracomment>
        <translation>مكتمل</translation>
    </message>
    <message>
        <source>Priority</source>
        <extracomment>Column: High, Medium or Low.</extracomment>
        <translation>الأولوية</translation>
    </message>
    <message>
        <source>Marks</source>
        <extracomment>Column of a table of reminders: Flagged, Repeats or both.</extracomment>
        <translation>علامات</translation>
    </message>
    <message>
        <source>Starts</source>
        <extracomment>Column: when an event begins.</extracomment>
        <translation>البداية</translation>
    </message>
    <message>
        <source>Ends</source>
        <extracomment>Column: when an event ends.</extracomment>
        <translation>النهاية</translation>
    </message>
    <message>
        <source>Calendar</source>
        <extracomment>Column: the calendar that an event belongs to; also the name of the one that each phone has.</extracomment>
        <translation>التقويم</translation>
    </message>
    <message>
        <source>Every day</source>
        <extracomment>How often an event comes again.</extracomment>
        <translation>كل يوم</translation>
    </message>
    <message>
        <source>Every week</source>
        <extracomment>How often an event comes again.</extracomment>
        <translation>كل أسبوع</translation>
    </message>
    <message>
        <source>Every month</source>
        <extracomment>How often an event comes again.</extracomment>
        <translation>كل شهر</translation>
    </message>
    <message>
        <source>Every year</source>
        <extracomment>How often an event comes again.</extracomment>
        <translation>كل سنة</translation>
    </message>
    <message>
        <source>Every %1 days</source>
        <extracomment>%1 is a number from 2 on.</extracomment>
        <translation>كل عدة أيام: %1</translation>
    </message>
    <message>
        <source>Every %1 weeks</source>
        <extracomment>%1 is a number from 2 on.</extracomment>
        <translation>كل عدة أسابيع: %1</translation>
    </message>
    <message>
        <source>Every %1 months</source>
        <extracomment>%1 is a number from 2 on.</extracomment>
        <translation>كل عدة أشهر: %1</translation>
    </message>
    <message>
        <source>Every %1 years</source>
        <extracomment>%1 is a number from 2 on.</extracomment>
        <translation>كل عدة سنوات: %1</translation>
    </message>
    <message>
        <source>%1 until
%2</source>
        <extracomment>How often and up to which day an event comes again: Every week until 2024-07-16.</extracomment>
        <translation>%1 حتى
%2</translation>
    </message>
    <message>
        <source>Attendees: %1</source>
        <extracomment>Line of the details of an event: the names of those who take part.</extracomment>
        <translation>المشاركون: %1</translation>
    </message>
    <message>
        <source>Alert: %1</source>
        <extracomment>Line of the details of an event: when the phone rings for it.</extracomment>
        <translation>التنبيه: %1</translation>
    </message>
    <message>
        <source>Details</source>
        <extracomment>Column: what else there is to an event, such as attendees and alerts.</extracomment>
        <translation>التفاصيل</translation>
    </message>
    <message>
        <source>Accepted</source>
        <extracomment>Answer to an invitation, beside a name or as a mark of an event.</extracomment>
        <translation>تم القبول</translation>
    </message>
    <message>
        <source>Declined</source>
        <extracomment>Answer to an invitation, beside a name or as a mark of an event.</extracomment>
        <translation>تم الرفض</translation>
    </message>
    <message>
        <source>Maybe</source>
        <extracomment>Answer to an invitation, beside a name or as a mark of an event.</extracomment>
        <translation>ربما</translation>
    </message>
    <message>
        <source>Organizer</source>
        <extracomment>Beside the name of the person who invites to an event.</extracomment>
        <translation>المنظم</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <extracomment>Mark of an event that does not take place.</extracomment>
        <translation>ملغى</translation>
    </message>
    <message>
        <source>Tentative</source>
        <extracomment>Mark of an event that is not yet certain.</extracomment>
        <translation>مبدئي</translation>
    </message>
    <message>
        <source>Invitation</source>
        <extracomment>Mark of an event that the owner of the phone was invited to and has not answered.</extracomment>
        <translation>دعوة</translation>
    </message>
    <message>
        <source>Flagged</source>
        <extracomment>Mark of a reminder: the owner flagged it.</extracomment>
        <translation>معلّم</translation>
    </message>
    <message>
        <source>Repeats</source>
        <extracomment>Mark of a reminder: it comes again. Also the column that tells how often an event does.</extracomment>
        <translation>يتكرر</translation>
    </message>
    <message>
        <source>High</source>
        <extracomment>Priority of a reminder.</extracomment>
        <translation>عالية</translation>
    </message>
    <message>
        <source>Medium</source>
        <extracomment>Priority of a reminder.</extracomment>
        <translation>متوسطة</translation>
    </message>
    <message>
        <source>Low</source>
        <extracomment>Priority of a reminder.</extracomment>
        <translation>منخفضة</translation>
    </message>
    <message>
        <source>Yes</source>
        <extracomment>In the column Completed: a reminder of which nobody knows when.</extracomment>
        <translation>نعم</translation>
    </message>
    <message>
        <source>Reminders</source>
        <extracomment>Name of the list of reminders that each phone has.</extracomment>
        <translation>التذكيرات</translation>
    </message>
    <message>
        <source>Folder</source>
        <extracomment>Column: the folder of a note.</extracomment>
        <translation>المجلد</translation>
    </message>
    <message>
        <source>Created</source>
        <extracomment>Column: when a note was begun.</extracomment>
        <translation>تاريخ الإنشاء</translation>
    </message>
    <message>
        <source>Modified</source>
        <extracomment>Column: when a note was changed.</extracomment>
        <translation>تاريخ التعديل</translation>
    </message>
    <message>
        <source>Recently Deleted</source>
        <extracomment>The folder of deleted notes.</extracomment>
        <translation>المحذوفة مؤخرًا</translation>
    </message>
    <message>
        <source>Attachment</source>
        <extracomment>Stands in a note for an attachment without a name.</extracomment>
        <translation>مرفق</translation>
    </message>
    <message>
        <source>Drawing</source>
        <extracomment>The name of a drawing in a note that has none of its own; becomes a file name.</extracomment>
        <translation>رسم</translation>
    </message>
    <message>
        <source>Scan</source>
        <extracomment>The name of scanned pages in a note that have none of their own; becomes a file name.</extracomment>
        <translation>مسح ضوئي</translation>
    </message>
    <message>
        <source>Web address</source>
        <extracomment>Column: the address of a web page.</extracomment>
        <translation>عنوان الويب</translation>
    </message>
    <message>
        <source>Label</source>
        <extracomment>Column: what stands before a link, a date or the name of a site.</extracomment>
        <translation>التسمية</translation>
    </message>
    <message>
        <source>The note “%1” names an attachment that its store does not have.</source>
        <extracomment>%1 is the title of a note.</extracomment>
        <translation>تشير الملاحظة «%1» إلى مرفق غير موجود في قاعدة بياناتها.</translation>
    </message>
    <message>
        <source>%1 more notes name attachments that their store does not have.</source>
        <translation>ملاحظات أخرى تشير إلى مرفقات غير موجودة في قاعدة بياناتها: %1.</translation>
    </message>
    <message>
        <source>A table in the note “%1” cannot be read: %2</source>
        <extracomment>%1 is the title of a note. %2 is the reason.</extracomment>
        <translation>تتعذر قراءة جدول في الملاحظة «%1»: %2</translation>
    </message>
    <message>
        <source>%1 more notes have tables that cannot be read.</source>
        <translation>ملاحظات أخرى فيها جداول تتعذر قراءتها: %1.</translation>
    </message>
    <message>
        <source>The text of the note “%1” cannot be read: %2</source>
        <extracomment>%1 is the title of a note. %2 is the reason.</extracomment>
        <translation>تتعذر قراءة نص الملاحظة «%1»: %2</translation>
    </message>
    <message>
        <source>%1 more notes have texts that cannot be read.</source>
        <translation>ملاحظات أخرى تتعذر قراءة نصها: %1.</translation>
    </message>
    <message>
        <source>The backup has no file “%1” of the note “%2”.</source>
        <translation>النسخة الاحتياطية لا تحتوي على الملف «%1» من الملاحظة «%2».</translation>
    </message>
    <message>
        <source>%1 more files of notes are missing in the backup.</source>
        <translation>ملفات ملاحظات أخرى غير موجودة في النسخة الاحتياطية: %1.</translation>
    </message>
    <message>
        <source>One note was never downloaded to the phone.</source>
        <translation>لم يتم تنزيل إحدى الملاحظات على الهاتف قط.</translation>
    </message>
    <message>
        <source>%1 notes were never downloaded to the phone.</source>
        <extracomment>%1 is 2 or more.</extracomment>
        <translation>عدد الملاحظات التي لم يتم تنزيلها على الهاتف قط: %1.</translation>
    </message>
    <message>
        <source>One attachment of a locked note cannot be read.</source>
        <translation>تتعذر قراءة مرفق ملاحظة مقفلة.</translation>
    </message>
    <message>
        <source>%1 attachments of locked notes cannot be read.</source>
        <extracomment>%1 is 2 or more.</extracomment>
        <translation>عدد مرفقات الملاحظات المقفلة التي تتعذر قراءتها: %1.</translation>
    </message>
    <message>
        <source>%1 has no column %2; it is read as empty.</source>
        <extracomment>%1 is a file, a database.</extracomment>
        <translation>لا يحتوي %1 على العمود %2؛ سيُقرأ كأنه فارغ.</translation>
    </message>
    <message>
        <source>%1 is damaged; what can be read of it is there.</source>
        <extracomment>%1 is a file, a database.</extracomment>
        <translation>%1 تالف؛ وما أمكنت قراءته منه موجود.</translation>
    </message>
    <message>
        <source>%1 has no table %2.</source>
        <extracomment>%1 is a file, a database.</extracomment>
        <translation>لا يحتوي %1 على الجدول %2.</translation>
    </message>
    <message>
        <source>the store is damaged</source>
        <extracomment>A reason, after a colon.</extracomment>
        <translation>قاعدة البيانات تالفة</translation>
    </message>
    <message>
        <source>No Name</source>
        <extracomment>Stands for the name of a contact that has none.</extracomment>
        <translation>بلا اسم</translation>
    </message>
    <message>
        <source>Chinese birthday</source>
        <extracomment>Label of a date.</extracomment>
        <translation>عيد الميلاد (التقويم الصيني)</translation>
    </message>
    <message>
        <source>Hebrew birthday</source>
        <extracomment>Label of a date.</extracomment>
        <translation>عيد الميلاد (التقويم العبري)</translation>
    </message>
    <message>
        <source>Islamic birthday</source>
        <extracomment>Label of a date.</extracomment>
        <translation>عيد الميلاد (التقويم الهجري)</translation>
    </message>
    <message>
        <source>Month %1, day %2</source>
        <extracomment>A day of the Chinese calendar; the year may follow after a comma.</extracomment>
        <translation>الشهر %1، اليوم %2</translation>
    </message>
    <message>
        <source>Leap month %1, day %2</source>
        <extracomment>A day of the Chinese calendar, in a month that comes twice in its year.</extracomment>
        <translation>الشهر الكبيس %1، اليوم %2</translation>
    </message>
    <message>
        <source>%1 added %2 to the community</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: إضافة عضو إلى المجتمع: %2</translation>
    </message>
    <message>
        <source>%1 was added to the community</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: الإضافة إلى المجتمع</translation>
    </message>
    <message>
        <source>%1 was added to the conversation</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: الإضافة إلى المحادثة</translation>
    </message>
    <message>
        <source>%1 was removed from the conversation</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: الإزالة من المحادثة</translation>
    </message>
    <message>
        <source>%1 created the group</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: إنشاء المجموعة</translation>
    </message>
    <message>
        <source>%1 joined by a link</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: الانضمام عبر رابط</translation>
    </message>
    <message>
        <source>%1 joined by an invitation</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: الانضمام بدعوة</translation>
    </message>
    <message>
        <source>%1 joined from the community</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: الانضمام من المجتمع</translation>
    </message>
    <message>
        <source>%1 made %2 an admin</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: تعيين مشرف: %2</translation>
    </message>
    <message>
        <source>%1 is now an admin</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: مشرف الآن</translation>
    </message>
    <message>
        <source>You are now an admin</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>أنت الآن مشرف</translation>
    </message>
    <message>
        <source>You are no longer an admin</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>لم تعد مشرفًا</translation>
    </message>
    <message>
        <source>%1 changed the group description</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: تغيير وصف المجموعة</translation>
    </message>
    <message>
        <source>%1 deleted the group description</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: حذف وصف المجموعة</translation>
    </message>
    <message>
        <source>%1 allowed only admins to edit the group</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: السماح للمشرفين فقط بتعديل المجموعة</translation>
    </message>
    <message>
        <source>%1 allowed all members to edit the group</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: السماح لجميع الأعضاء بتعديل المجموعة</translation>
    </message>
    <message>
        <source>%1 allowed only admins to send messages</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: السماح للمشرفين فقط بإرسال الرسائل</translation>
    </message>
    <message>
        <source>%1 allowed all members to send messages</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: السماح لجميع الأعضاء بإرسال الرسائل</translation>
    </message>
    <message>
        <source>%1 allowed only admins to add members</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: السماح للمشرفين فقط بإضافة الأعضاء</translation>
    </message>
    <message>
        <source>%1 changed disappearing messages</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: تغيير إعداد الرسائل ذاتية الاختفاء</translation>
    </message>
    <message>
        <source>%1 turned off disappearing messages</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: إيقاف الرسائل ذاتية الاختفاء</translation>
    </message>
    <message>
        <source>%1 made messages disappear after %2 hours</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a number, 2 or more.</extracomment>
        <translation>%1: تختفي الرسائل بعد %2 من الساعات</translation>
    </message>
    <message>
        <source>%1 made messages disappear after %2 days</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a number, 2 or more.</extracomment>
        <translation>%1: تختفي الرسائل بعد %2 من الأيام</translation>
    </message>
    <message>
        <source>%1 deleted a message</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: حذف رسالة</translation>
    </message>
    <message>
        <source>A message of %1 has not arrived yet</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: رسالة لم تصل بعد</translation>
    </message>
    <message>
        <source>The security code of %1 changed</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: تغيّر رمز الأمان</translation>
    </message>
    <message>
        <source>%1 was blocked</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: تم الحظر</translation>
    </message>
    <message>
        <source>%1 was unblocked</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: تم إلغاء الحظر</translation>
    </message>
    <message>
        <source>Messages and calls are encrypted from end to end</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>الرسائل والمكالمات مشفرة تمامًا بين الطرفين</translation>
    </message>
    <message>
        <source>Notice about a business account</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>إشعار بشأن حساب تجاري</translation>
    </message>
    <message>
        <source>Group call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>مكالمة جماعية</translation>
    </message>
    <message>
        <source>Call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>مكالمة</translation>
    </message>
    <message>
        <source>The channel was created</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>تم إنشاء القناة</translation>
    </message>
    <message>
        <source>The privacy of the channel changed</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>تغيّرت خصوصية القناة</translation>
    </message>
    <message>
        <source>The channel was changed</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>تم تغيير القناة</translation>
    </message>
    <message>
        <source>Message of a business</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>رسالة من نشاط تجاري</translation>
    </message>
    <message>
        <source>Invitation to a group</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>دعوة إلى مجموعة</translation>
    </message>
    <message>
        <source>Product</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>منتج</translation>
    </message>
    <message>
        <source>Album</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>ألبوم</translation>
    </message>
    <message>
        <source>Voice message</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>رسالة صوتية</translation>
    </message>
    <message>
        <source>Contact card</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>بطاقة جهة اتصال</translation>
    </message>
    <message>
        <source>Document</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>مستند</translation>
    </message>
    <message>
        <source>Forwarded</source>
        <extracomment>Stands above a message that was written by somebody else.</extracomment>
        <translation>تمت إعادة التوجيه</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>Title of the chat with the short-lived posts of all people.</extracomment>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>%1: files of messages that are not in the backup: %2</source>
        <extracomment>A remark on a backup: %1 is the name of a database. %2 is a number.</extracomment>
        <translation>%1: ملفات رسائل غير موجودة في النسخة الاحتياطية: %2</translation>
    </message>
    <message>
        <source>Albums</source>
        <extracomment>Column: the albums that a photo is in.</extracomment>
        <translation>الألبومات</translation>
    </message>
    <message>
        <source>Photo</source>
        <extracomment>Type of a picture of the camera roll.</extracomment>
        <translation>صورة</translation>
    </message>
    <message>
        <source>Video</source>
        <extracomment>Type of a film of the camera roll.</extracomment>
        <translation>فيديو</translation>
    </message>
    <message>
        <source>Panorama</source>
        <extracomment>Type of a photo.</extracomment>
        <translation>بانوراما</translation>
    </message>
    <message>
        <source>Live Photo</source>
        <extracomment>Type of a photo: a picture with a short film.</extracomment>
        <translation>Live Photo</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <extracomment>Type of a photo.</extracomment>
        <translation>لقطة شاشة</translation>
    </message>
    <message>
        <source>Slow motion</source>
        <extracomment>Type of a film.</extracomment>
        <translation>حركة بطيئة</translation>
    </message>
    <message>
        <source>Time-lapse</source>
        <extracomment>Type of a film.</extracomment>
        <translation>فاصل زمني</translation>
    </message>
    <message>
        <source>Favourite</source>
        <extracomment>Mark of a photo.</extracomment>
        <translation>مفضّلة</translation>
    </message>
    <message>
        <source>Hidden</source>
        <extracomment>Mark of a photo that the phone shows in the album of hidden ones only.</extracomment>
        <translation>مخفية</translation>
    </message>
    <message>
        <source>Edited</source>
        <extracomment>Mark of a photo: this is the version that its owner has edited.</extracomment>
        <translation>معدّلة</translation>
    </message>
    <message>
        <source>%1 (edited)</source>
        <extracomment>Name of a file without its ending: the edited version of the photo %1.</extracomment>
        <translation>%1 (معدّلة)</translation>
    </message>
    <message>
        <source>Photos and videos of which the backup has small previews only: %1</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>الصور والفيديوهات التي لا تتضمن النسخة الاحتياطية سوى معاينات صغيرة لها: %1</translation>
    </message>
    <message>
        <source>Photos and videos of the library that are not in the backup: %1</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>صور المكتبة وفيديوهاتها غير الموجودة في النسخة الاحتياطية: %1</translation>
    </message>
    <message>
        <source>Recordings that are not in the backup: %1</source>
        <extracomment>%1 is a number; voice memos, or messages on the answering machine.</extracomment>
        <translation>التسجيلات غير الموجودة في النسخة الاحتياطية: %1</translation>
    </message>
    <message>
        <source>App</source>
        <extracomment>Column: the app that a file belongs to.</extracomment>
        <translation>التطبيق</translation>
    </message>
    <message>
        <source>Place</source>
        <extracomment>Column: the directory of an app&apos;s file; of an event, where it takes place.</extracomment>
        <translation>الموقع</translation>
    </message>
</context>
<context>
    <name>ExportCSVFile_Google</name>
    <message>
        <source>for Google</source>
        <extracomment>End of a file name: &quot;Anna&apos;s Contacts for Google&quot;.</extracomment>
        <translation>لـ Google</translation>
    </message>
</context>
<context>
    <name>ExportCSVFile_Outlook</name>
    <message>
        <source>for Outlook</source>
        <extracomment>End of a file name: &quot;Anna&apos;s Contacts for Outlook&quot;.</extracomment>
        <translation>لـ Outlook</translation>
    </message>
</context>
<context>
    <name>ExportVCFFile</name>
    <message>
        <source>for iCloud</source>
        <extracomment>End of a file name: &quot;Anna&apos;s Contacts for iCloud&quot;.</extracomment>
        <translation>لـ iCloud</translation>
    </message>
    <message>
        <source>for Mac</source>
        <extracomment>End of a file name: &quot;Anna&apos;s Contacts for Mac&quot;.</extracomment>
        <translation>لـ Mac</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>DataExport</name>
    <message>
        <source>%1&apos;s %2</source>
        <extracomment>Title of a page: %1 is a person&apos;s name, %2 the name of a category, such as Messages.</extracomment>
        <translation>%1의 %2</translation>
    </message>
    <message>
        <source>in common use</source>
        <extracomment>Part of a file name, after the category: contacts in a form that any program reads.</extracomment>
        <translation>일반용</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>전화</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>이메일</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>날짜</translation>
    </message>
    <message>
        <source>Type</source>
        <extracomment>Column: whether a message was sent or received, or a call came in or went out.</extracomment>
        <translation>종류</translation>
    </message>
    <message>
        <source>Content</source>
        <extracomment>Column: the text of a message or of a note.</extracomment>
        <translation>내용</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>A message whose sending was never completed, or a conversation or a caller without a name.</extracomment>
        <translation>알 수 없음</translation>
    </message>
    <message>
        <source>Sent</source>
        <extracomment>Of a message.</extracomment>
        <translation>보냄</translation>
    </message>
    <message>
        <source>Received</source>
        <extracomment>Of a message.</extracomment>
        <translation>받음</translation>
    </message>
    <message>
        <source>Name: %1</source>
        <translation>이름: %1</translation>
    </message>
    <message>
        <source>Phone: %1</source>
        <translation>전화: %1</translation>
    </message>
    <message>
        <source>Email: %1</source>
        <translation>이메일: %1</translation>
    </message>
    <message>
        <source>Date: %1</source>
        <translation>날짜: %1</translation>
    </message>
    <message>
        <source>Chat</source>
        <extracomment>Column: the name of a conversation.</extracomment>
        <translation>채팅</translation>
    </message>
    <message>
        <source>Chat: %1</source>
        <translation>채팅: %1</translation>
    </message>
    <message>
        <source>Group Event</source>
        <extracomment>Of a line in a conversation: somebody joined, left, and the like.</extracomment>
        <translation>그룹 이벤트</translation>
    </message>
    <message>
        <source>Fail</source>
        <extracomment>Of a message that could not be sent.</extracomment>
        <translation>실패</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>세부사항</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>별명</translation>
    </message>
    <message>
        <source>Wechat ID</source>
        <extracomment>The name by which a person can be found there.</extracomment>
        <translation>위챗 ID</translation>
    </message>
    <message>
        <source>WXID</source>
        <extracomment>The inner name of an account; not to be translated.</extracomment>
        <translation>WXID</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>지역</translation>
    </message>
    <message>
        <source>What&apos;s Up</source>
        <extracomment>A line that a person shows beside the name.</extracomment>
        <translation>상태 메시지</translation>
    </message>
    <message>
        <source>mobile</source>
        <extracomment>Label of a telephone number.</extracomment>
        <translation>휴대전화</translation>
    </message>
    <message>
        <source>iPhone</source>
        <translation>iPhone</translation>
    </message>
    <message>
        <source>home</source>
        <extracomment>Label of a number, an address and the like.</extracomment>
        <translation>집</translation>
    </message>
    <message>
        <source>work</source>
        <extracomment>Label of a number, an address and the like.</extracomment>
        <translation>직장</translation>
    </message>
    <message>
        <source>anniversary</source>
        <extracomment>Label of a date: a day that returns each year, not a birthday.</extracomment>
        <translation>기념일</translation>
    </message>
    <message>
        <source>other</source>
        <extracomment>Label of a number, an address and the like.</extracomment>
        <translation>기타</translation>
    </message>
    <message>
        <source>main</source>
        <extracomment>Label of a telephone number.</extracomment>
        <translation>대표 번호</translation>
    </message>
    <message>
        <source>other fax</source>
        <translation>기타 팩스</translation>
    </message>
    <message>
        <source>home fax</source>
        <translation>집 팩스</translation>
    </message>
    <message>
        <source>work fax</source>
        <translation>직장 팩스</translation>
    </message>
    <message>
        <source>pager</source>
        <translation>호출기</translation>
    </message>
    <message>
        <source>home page</source>
        <extracomment>Label of a web address.</extracomment>
        <translation>홈페이지</translation>
    </message>
    <message>
        <source>mother</source>
        <translation>어머니</translation>
    </message>
    <message>
        <source>father</source>
        <translation>아버지</translation>
    </message>
    <message>
        <source>parent</source>
        <extracomment>Mother or father.</extracomment>
        <translation>부모</translation>
    </message>
    <message>
        <source>brother</source>
        <translation>형제</translation>
    </message>
    <message>
        <source>sister</source>
        <translation>자매</translation>
    </message>
    <message>
        <source>child</source>
        <translation>자녀</translation>
    </message>
    <message>
        <source>friend</source>
        <extracomment>A woman or a man.</extracomment>
        <translation>친구</translation>
    </message>
    <message>
        <source>spouse</source>
        <translation>배우자</translation>
    </message>
    <message>
        <source>partner</source>
        <extracomment>A woman or a man with whom somebody lives.</extracomment>
        <translation>파트너</translation>
    </message>
    <message>
        <source>assistant</source>
        <extracomment>A person at work.</extracomment>
        <translation>비서</translation>
    </message>
    <message>
        <source>manager</source>
        <extracomment>A person at work.</extracomment>
        <translation>관리자</translation>
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
        <translation>생일</translation>
    </message>
    <message>
        <source>School</source>
        <translation>학교</translation>
    </message>
    <message>
        <source>Elder Brother</source>
        <translation>형/오빠</translation>
    </message>
    <message>
        <source>Elder Sister</source>
        <translation>누나/언니</translation>
    </message>
    <message>
        <source>Younger Brother</source>
        <translation>남동생</translation>
    </message>
    <message>
        <source>Younger Sister</source>
        <translation>여동생</translation>
    </message>
    <message>
        <source>Husband</source>
        <translation>남편</translation>
    </message>
    <message>
        <source>Wife</source>
        <translation>아내</translation>
    </message>
    <message>
        <source>Son</source>
        <translation>아들</translation>
    </message>
    <message>
        <source>Daughter</source>
        <translation>딸</translation>
    </message>
    <message>
        <source>Colleague</source>
        <translation>동료</translation>
    </message>
    <message>
        <source>Address</source>
        <extracomment>A postal address.</extracomment>
        <translation>주소</translation>
    </message>
    <message>
        <source>URL</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>Related Name</source>
        <extracomment>A person who belongs to this one: mother, assistant and so on.</extracomment>
        <translation>관련 이름</translation>
    </message>
    <message>
        <source>Social Profile</source>
        <translation>소셜 프로필</translation>
    </message>
    <message>
        <source>Instant Message</source>
        <extracomment>Heading over accounts of messengers.</extracomment>
        <translation>인스턴트 메시지</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>생일</translation>
    </message>
    <message>
        <source>Notes</source>
        <extracomment>Heading: what was noted on a contact or on a reminder.</extracomment>
        <translation>메모</translation>
    </message>
    <message>
        <source>Reading List</source>
        <extracomment>Pages to be read later, in the browser.</extracomment>
        <translation>읽기 목록</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>Pages that were visited, in the browser.</extracomment>
        <translation>방문 기록</translation>
    </message>
    <message>
        <source>Locked</source>
        <extracomment>Of a note that only its password opens.</extracomment>
        <translation>잠김</translation>
    </message>
    <message>
        <source>You</source>
        <extracomment>Who did something: stands for %1 in the lines below.</extracomment>
        <translation>나</translation>
    </message>
    <message>
        <source>you</source>
        <extracomment>Who was added or removed: stands for %2 in two of the lines below.</extracomment>
        <translation>나</translation>
    </message>
    <message>
        <source>Someone</source>
        <extracomment>Stands for a person without name and number.</extracomment>
        <translation>알 수 없는 사람</translation>
    </message>
    <message>
        <source>a message</source>
        <extracomment>What a reaction is about.</extracomment>
        <translation>메시지</translation>
    </message>
    <message>
        <source>an attachment</source>
        <extracomment>What a reaction is about.</extracomment>
        <translation>첨부 파일</translation>
    </message>
    <message>
        <source>%1 edited the message. Before: %2</source>
        <extracomment>%1 may be &quot;You&quot;; %2 is what the message said, in quotation marks.</extracomment>
        <translation>%1: 메시지 편집함. 이전 내용: %2</translation>
    </message>
    <message>
        <source>%1 placed a sticker on %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: 스티커 붙임: %2</translation>
    </message>
    <message>
        <source>%1 loved %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;. A heart on a message.</extracomment>
        <translation>%1: 하트로 반응함: %2</translation>
    </message>
    <message>
        <source>%1 liked %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: 좋아요로 반응함: %2</translation>
    </message>
    <message>
        <source>%1 disliked %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: 싫어요로 반응함: %2</translation>
    </message>
    <message>
        <source>%1 laughed at %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: 웃음으로 반응함: %2</translation>
    </message>
    <message>
        <source>%1 emphasized %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;. Exclamation marks on a message.</extracomment>
        <translation>%1: 느낌표로 반응함: %2</translation>
    </message>
    <message>
        <source>%1 questioned %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;. A question mark on a message.</extracomment>
        <translation>%1: 물음표로 반응함: %2</translation>
    </message>
    <message>
        <source>%1 reacted with a sticker to %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: 스티커로 반응함: %2</translation>
    </message>
    <message>
        <source>%1 voted on %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;. %2 is a poll.</extracomment>
        <translation>%1: 투표함: %2</translation>
    </message>
    <message>
        <source>%1 reacted with %2 to %3</source>
        <extracomment>%1 is a name, or &quot;You&quot;. %2 is an emoji.</extracomment>
        <translation>%1: %2(으)로 반응함: %3</translation>
    </message>
    <message>
        <source>%1 reacted to %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: 반응함: %2</translation>
    </message>
    <message>
        <source>%1 removed %2 from the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;. %2 is a name, or &quot;you&quot;.</extracomment>
        <translation>%1: 대화에서 내보냄: %2</translation>
    </message>
    <message>
        <source>%1 changed the phone number</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: 전화번호 변경함</translation>
    </message>
    <message>
        <source>%1 added %2 to the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;. %2 is a name, or &quot;you&quot;.</extracomment>
        <translation>%1: 대화에 추가함: %2</translation>
    </message>
    <message>
        <source>%1 removed the name of the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: 대화 이름 제거함</translation>
    </message>
    <message>
        <source>%1 named the conversation %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;. %2 is the new name, in quotation marks.</extracomment>
        <translation>%1: 대화 이름을 %2(으)로 지정함</translation>
    </message>
    <message>
        <source>%1 left the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: 대화에서 나감</translation>
    </message>
    <message>
        <source>%1 changed the group photo</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: 그룹 사진 변경함</translation>
    </message>
    <message>
        <source>%1 removed the group photo</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: 그룹 사진 제거함</translation>
    </message>
    <message>
        <source>%1 changed the background of the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: 대화 배경 변경함</translation>
    </message>
    <message>
        <source>%1 removed the background of the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: 대화 배경 제거함</translation>
    </message>
    <message>
        <source>%1 changed the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: 대화 변경함</translation>
    </message>
    <message>
        <source>%1 started sharing the location</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: 위치 공유 시작함</translation>
    </message>
    <message>
        <source>%1 stopped sharing the location</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: 위치 공유 중단함</translation>
    </message>
    <message>
        <source>%1 kept an audio message</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: 오디오 메시지 보관함</translation>
    </message>
    <message>
        <source>%1 started a call or a shared activity</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: 통화 또는 공유 활동 시작함</translation>
    </message>
    <message>
        <source>%1 unsent a message</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: 메시지 보내기 취소함</translation>
    </message>
    <message>
        <source>Handwritten message</source>
        <translation>손글씨 메시지</translation>
    </message>
    <message>
        <source>Digital Touch message</source>
        <extracomment>Digital Touch is a name.</extracomment>
        <translation>Digital Touch 메시지</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>결제</translation>
    </message>
    <message>
        <source>Location</source>
        <extracomment>A message that tells where somebody is.</extracomment>
        <translation>위치</translation>
    </message>
    <message>
        <source>Fitness message</source>
        <extracomment>From the app that counts steps and training.</extracomment>
        <translation>피트니스 메시지</translation>
    </message>
    <message>
        <source>Shared photos</source>
        <translation>공유된 사진</translation>
    </message>
    <message>
        <source>Check In</source>
        <extracomment>An app tells others that somebody has arrived safely.</extracomment>
        <translation>안심 도착</translation>
    </message>
    <message>
        <source>Poll</source>
        <translation>투표</translation>
    </message>
    <message>
        <source>App message</source>
        <translation>앱 메시지</translation>
    </message>
    <message>
        <source>One attachment was never downloaded to the phone.</source>
        <translation>첨부 파일 1개가 전화기에 다운로드된 적이 없습니다.</translation>
    </message>
    <message>
        <source>%1 attachments were never downloaded to the phone.</source>
        <extracomment>%1 is 2 or more.</extracomment>
        <translation>첨부 파일 %1개가 전화기에 다운로드된 적이 없습니다.</translation>
    </message>
    <message>
        <source>%1: the table of conversations is damaged (%2); some messages may be missing.</source>
        <extracomment>%1 is a file, %2 what the database says.</extracomment>
        <translation>%1: 대화 목록이 손상되었습니다(%2). 일부 메시지가 빠졌을 수 있습니다.</translation>
    </message>
    <message>
        <source>%1: some messages cannot be read, the database is damaged (%2).</source>
        <extracomment>%1 is a file, %2 what the database says.</extracomment>
        <translation>%1: 데이터베이스가 손상되어 일부 메시지를 읽을 수 없습니다(%2).</translation>
    </message>
    <message>
        <source>The backup has no %1.</source>
        <extracomment>%1 is a file.</extracomment>
        <translation>백업에 %1이(가) 없습니다.</translation>
    </message>
    <message>
        <source>%1 of the backup is not of a kind that can be read.</source>
        <extracomment>%1 is a file.</extracomment>
        <translation>백업의 %1은(는) 읽을 수 있는 종류가 아닙니다.</translation>
    </message>
    <message>
        <source>this is no database of a kind that can be read; it has the tables %1</source>
        <extracomment>Follows the name of the file and a colon; %1 is a list of names.</extracomment>
        <translation>읽을 수 있는 종류의 데이터베이스가 아닙니다. 포함된 테이블: %1</translation>
    </message>
    <message>
        <source>Number</source>
        <extracomment>Column: a phone number or e-mail address.</extracomment>
        <translation>번호</translation>
    </message>
    <message>
        <source>Duration</source>
        <extracomment>Column: how long a call was.</extracomment>
        <translation>통화 시간</translation>
    </message>
    <message>
        <source>Service</source>
        <extracomment>Column: what carried a call, such as Phone or FaceTime Audio.</extracomment>
        <translation>서비스</translation>
    </message>
    <message>
        <source>Incoming</source>
        <extracomment>Type of a call.</extracomment>
        <translation>수신</translation>
    </message>
    <message>
        <source>Outgoing</source>
        <extracomment>Type of a call.</extracomment>
        <translation>발신</translation>
    </message>
    <message>
        <source>Missed</source>
        <extracomment>Type of a call: nobody answered it.</extracomment>
        <translation>부재중</translation>
    </message>
    <message>
        <source>Missed voice call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>부재중 음성 통화</translation>
    </message>
    <message>
        <source>Missed video call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>부재중 영상 통화</translation>
    </message>
    <message>
        <source>Incoming voice call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>수신 음성 통화</translation>
    </message>
    <message>
        <source>Incoming video call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>수신 영상 통화</translation>
    </message>
    <message>
        <source>Outgoing voice call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>발신 음성 통화</translation>
    </message>
    <message>
        <source>Outgoing video call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>발신 영상 통화</translation>
    </message>
    <message>
        <source>[Unknown message]</source>
        <extracomment>A line in a chat: a message of a kind that cannot be shown.</extracomment>
        <translation>[알 수 없는 메시지]</translation>
    </message>
    <message>
        <source>[System message]</source>
        <extracomment>A line in a chat that the chat program itself wrote.</extracomment>
        <translation>[시스템 메시지]</translation>
    </message>
    <message>
        <source>[Sticker]</source>
        <extracomment>In a chat, for a sticker whose picture is not there.</extracomment>
        <translation>[스티커]</translation>
    </message>
    <message>
        <source>[Album]</source>
        <extracomment>In a chat, for an album of pictures that is not there itself.</extracomment>
        <translation>[앨범]</translation>
    </message>
    <message>
        <source>[Album or post]</source>
        <extracomment>In a chat, for what cannot be shown itself.</extracomment>
        <translation>[앨범 또는 게시물]</translation>
    </message>
    <message>
        <source>[Contact]</source>
        <extracomment>In a chat, for the card of a contact of which nothing is known.</extracomment>
        <translation>[연락처]</translation>
    </message>
    <message>
        <source>[Call]</source>
        <extracomment>A line in a chat: a call of which nothing is known.</extracomment>
        <translation>[통화]</translation>
    </message>
    <message>
        <source>%1 Video</source>
        <extracomment>Service of a call: %1 is the name of an app.</extracomment>
        <translation>%1 영상통화</translation>
    </message>
    <message>
        <source>A message was recalled</source>
        <extracomment>A line in a chat: its sender took a message back.</extracomment>
        <translation>메시지가 회수되었습니다</translation>
    </message>
    <message>
        <source>Friend request from %1</source>
        <extracomment>A line in a chat. %1: a name.</extracomment>
        <translation>%1님의 친구 요청</translation>
    </message>
    <message>
        <source>Live location</source>
        <extracomment>In a chat, for a place that was shared for a while.</extracomment>
        <translation>실시간 위치</translation>
    </message>
    <message>
        <source>Other app</source>
        <extracomment>Service of a call: an app that is not known by name.</extracomment>
        <translation>기타 앱</translation>
    </message>
    <message>
        <source>FaceTime Audio</source>
        <extracomment>Service of a call.</extracomment>
        <translation>FaceTime 오디오</translation>
    </message>
    <message>
        <source>FaceTime Video</source>
        <extracomment>Service of a call.</extracomment>
        <translation>FaceTime 영상통화</translation>
    </message>
    <message>
        <source>Title</source>
        <extracomment>Column: of a reminder, of a note or of a web page.</extracomment>
        <translation>제목</translation>
    </message>
    <message>
        <source>List</source>
        <extracomment>Column: the list in which a reminder stands.</extracomment>
        <translation>목록</translation>
    </message>
    <message>
        <source>Due date</source>
        <extracomment>Column: when a reminder is due.</extracomment>
        <translation>기한</translation>
    </message>
    <message>
        <source>Completed</source>
        <extracomment>Column: when a reminder was completed, or Yes.</extracomment>
        <translation>완료</translation>
    </message>
    <message>
        <source>Priority</source>
        <extracomment>Column: High, Medium or Low.</extracomment>
        <translation>우선순위</translation>
    </message>
    <message>
        <source>Marks</source>
        <extracomment>Column of a table of reminders: Flagged, Repeats or both.</extracomment>
        <translation>표시</translation>
    </message>
    <message>
        <source>Starts</source>
        <extracomment>Column: when an event begins.</extracomment>
        <translation>시작</translation>
    </message>
    <message>
        <source>Ends</source>
        <extracomment>Column: when an event ends.</extracomment>
        <translation>종료</translation>
    </message>
    <message>
        <source>Calendar</source>
        <extracomment>Column: the calendar that an event belongs to; also the name of the one that each phone has.</extracomment>
        <translation>캘린더</translation>
    </message>
    <message>
        <source>Every day</source>
        <extracomment>How often an event comes again.</extracomment>
        <translation>매일</translation>
    </message>
    <message>
        <source>Every week</source>
        <extracomment>How often an event comes again.</extracomment>
        <translation>매주</translation>
    </message>
    <message>
        <source>Every month</source>
        <extracomment>How often an event comes again.</extracomment>
        <translation>매월</translation>
    </message>
    <message>
        <source>Every year</source>
        <extracomment>How often an event comes again.</extracomment>
        <translation>매년</translation>
    </message>
    <message>
        <source>Every %1 days</source>
        <extracomment>%1 is a number from 2 on.</extracomment>
        <translation>%1일마다</translation>
    </message>
    <message>
        <source>Every %1 weeks</source>
        <extracomment>%1 is a number from 2 on.</extracomment>
        <translation>%1주마다</translation>
    </message>
    <message>
        <source>Every %1 months</source>
        <extracomment>%1 is a number from 2 on.</extracomment>
        <translation>%1개월마다</translation>
    </message>
    <message>
        <source>Every %1 years</source>
        <extracomment>%1 is a number from 2 on.</extracomment>
        <translation>%1년마다</translation>
    </message>
    <message>
        <source>%1 until
%2</source>
        <extracomment>How often and up to which day an event comes again: Every week until 2024-07-16.</extracomment>
        <translation>%1 종료일
%2</translation>
    </message>
    <message>
        <source>Attendees: %1</source>
        <extracomment>Line of the details of an event: the names of those who take part.</extracomment>
        <translation>참석자: %1</translation>
    </message>
    <message>
        <source>Alert: %1</source>
        <extracomment>Line of the details of an event: when the phone rings for it.</extracomment>
        <translation>알림: %1</translation>
    </message>
    <message>
        <source>Details</source>
        <extracomment>Column: what else there is to an event, such as attendees and alerts.</extracomment>
        <translation>세부사항</translation>
    </message>
    <message>
        <source>Accepted</source>
        <extracomment>Answer to an invitation, beside a name or as a mark of an event.</extracomment>
        <translation>수락</translation>
    </message>
    <message>
        <source>Declined</source>
        <extracomment>Answer to an invitation, beside a name or as a mark of an event.</extracomment>
        <translation>거절</translation>
    </message>
    <message>
        <source>Maybe</source>
        <extracomment>Answer to an invitation, beside a name or as a mark of an event.</extracomment>
        <translation>미정</translation>
    </message>
    <message>
        <source>Organizer</source>
        <extracomment>Beside the name of the person who invites to an event.</extracomment>
        <translation>주최자</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <extracomment>Mark of an event that does not take place.</extracomment>
        <translation>취소됨</translation>
    </message>
    <message>
        <source>Tentative</source>
        <extracomment>Mark of an event that is not yet certain.</extracomment>
        <translation>잠정</translation>
    </message>
    <message>
        <source>Invitation</source>
        <extracomment>Mark of an event that the owner of the phone was invited to and has not answered.</extracomment>
        <translation>초대</translation>
    </message>
    <message>
        <source>Flagged</source>
        <extracomment>Mark of a reminder: the owner flagged it.</extracomment>
        <translation>깃발 표시</translation>
    </message>
    <message>
        <source>Repeats</source>
        <extracomment>Mark of a reminder: it comes again. Also the column that tells how often an event does.</extracomment>
        <translation>반복</translation>
    </message>
    <message>
        <source>High</source>
        <extracomment>Priority of a reminder.</extracomment>
        <translation>높음</translation>
    </message>
    <message>
        <source>Medium</source>
        <extracomment>Priority of a reminder.</extracomment>
        <translation>중간</translation>
    </message>
    <message>
        <source>Low</source>
        <extracomment>Priority of a reminder.</extracomment>
        <translation>낮음</translation>
    </message>
    <message>
        <source>Yes</source>
        <extracomment>In the column Completed: a reminder of which nobody knows when.</extracomment>
        <translation>예</translation>
    </message>
    <message>
        <source>Reminders</source>
        <extracomment>Name of the list of reminders that each phone has.</extracomment>
        <translation>미리 알림</translation>
    </message>
    <message>
        <source>Folder</source>
        <extracomment>Column: the folder of a note.</extracomment>
        <translation>폴더</translation>
    </message>
    <message>
        <source>Created</source>
        <extracomment>Column: when a note was begun.</extracomment>
        <translation>생성일</translation>
    </message>
    <message>
        <source>Modified</source>
        <extracomment>Column: when a note was changed.</extracomment>
        <translation>수정일</translation>
    </message>
    <message>
        <source>Recently Deleted</source>
        <extracomment>The folder of deleted notes.</extracomment>
        <translation>최근 삭제된 항목</translation>
    </message>
    <message>
        <source>Attachment</source>
        <extracomment>Stands in a note for an attachment without a name.</extracomment>
        <translation>첨부 파일</translation>
    </message>
    <message>
        <source>Drawing</source>
        <extracomment>The name of a drawing in a note that has none of its own; becomes a file name.</extracomment>
        <translation>그리기</translation>
    </message>
    <message>
        <source>Scan</source>
        <extracomment>The name of scanned pages in a note that have none of their own; becomes a file name.</extracomment>
        <translation>스캔한 도큐멘트</translation>
    </message>
    <message>
        <source>Web address</source>
        <extracomment>Column: the address of a web page.</extracomment>
        <translation>웹 주소</translation>
    </message>
    <message>
        <source>Label</source>
        <extracomment>Column: what stands before a link, a date or the name of a site.</extracomment>
        <translation>레이블</translation>
    </message>
    <message>
        <source>The note “%1” names an attachment that its store does not have.</source>
        <extracomment>%1 is the title of a note.</extracomment>
        <translation>메모 “%1”의 첨부 파일이 데이터베이스에 없습니다.</translation>
    </message>
    <message>
        <source>%1 more notes name attachments that their store does not have.</source>
        <translation>그 밖에 메모 %1개의 첨부 파일이 데이터베이스에 없습니다.</translation>
    </message>
    <message>
        <source>A table in the note “%1” cannot be read: %2</source>
        <extracomment>%1 is the title of a note. %2 is the reason.</extracomment>
        <translation>메모 “%1”의 표를 읽을 수 없습니다: %2</translation>
    </message>
    <message>
        <source>%1 more notes have tables that cannot be read.</source>
        <translation>그 밖에 메모 %1개에 읽을 수 없는 표가 있습니다.</translation>
    </message>
    <message>
        <source>The text of the note “%1” cannot be read: %2</source>
        <extracomment>%1 is the title of a note. %2 is the reason.</extracomment>
        <translation>메모 “%1”의 텍스트를 읽을 수 없습니다: %2</translation>
    </message>
    <message>
        <source>%1 more notes have texts that cannot be read.</source>
        <translation>그 밖에 메모 %1개의 텍스트를 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>The backup has no file “%1” of the note “%2”.</source>
        <translation>백업에 메모 “%2”의 파일 “%1”이(가) 없습니다.</translation>
    </message>
    <message>
        <source>%1 more files of notes are missing in the backup.</source>
        <translation>그 밖에 메모 파일 %1개가 백업에 없습니다.</translation>
    </message>
    <message>
        <source>One note was never downloaded to the phone.</source>
        <translation>메모 1개가 전화기에 다운로드된 적이 없습니다.</translation>
    </message>
    <message>
        <source>%1 notes were never downloaded to the phone.</source>
        <extracomment>%1 is 2 or more.</extracomment>
        <translation>메모 %1개가 전화기에 다운로드된 적이 없습니다.</translation>
    </message>
    <message>
        <source>One attachment of a locked note cannot be read.</source>
        <translation>잠긴 메모의 첨부 파일 1개를 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>%1 attachments of locked notes cannot be read.</source>
        <extracomment>%1 is 2 or more.</extracomment>
        <translation>잠긴 메모의 첨부 파일 %1개를 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>%1 has no column %2; it is read as empty.</source>
        <extracomment>%1 is a file, a database.</extracomment>
        <translation>%1에 %2 열이 없습니다. 비어 있는 것으로 읽습니다.</translation>
    </message>
    <message>
        <source>%1 is damaged; what can be read of it is there.</source>
        <extracomment>%1 is a file, a database.</extracomment>
        <translation>%1이(가) 손상되었습니다. 읽을 수 있는 내용만 있습니다.</translation>
    </message>
    <message>
        <source>%1 has no table %2.</source>
        <extracomment>%1 is a file, a database.</extracomment>
        <translation>%1에 %2 표가 없습니다.</translation>
    </message>
    <message>
        <source>the store is damaged</source>
        <extracomment>A reason, after a colon.</extracomment>
        <translation>데이터베이스가 손상되었습니다</translation>
    </message>
    <message>
        <source>No Name</source>
        <extracomment>Stands for the name of a contact that has none.</extracomment>
        <translation>이름 없음</translation>
    </message>
    <message>
        <source>Chinese birthday</source>
        <extracomment>Label of a date.</extracomment>
        <translation>생일(중국력)</translation>
    </message>
    <message>
        <source>Hebrew birthday</source>
        <extracomment>Label of a date.</extracomment>
        <translation>생일(히브리력)</translation>
    </message>
    <message>
        <source>Islamic birthday</source>
        <extracomment>Label of a date.</extracomment>
        <translation>생일(이슬람력)</translation>
    </message>
    <message>
        <source>Month %1, day %2</source>
        <extracomment>A day of the Chinese calendar; the year may follow after a comma.</extracomment>
        <translation>%1월 %2일</translation>
    </message>
    <message>
        <source>Leap month %1, day %2</source>
        <extracomment>A day of the Chinese calendar, in a month that comes twice in its year.</extracomment>
        <translation>윤%1월 %2일</translation>
    </message>
    <message>
        <source>%1 added %2 to the community</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: 커뮤니티에 추가함: %2</translation>
    </message>
    <message>
        <source>%1 was added to the community</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: 커뮤니티에 추가됨</translation>
    </message>
    <message>
        <source>%1 was added to the conversation</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: 대화에 추가됨</translation>
    </message>
    <message>
        <source>%1 was removed from the conversation</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: 대화에서 삭제됨</translation>
    </message>
    <message>
        <source>%1 created the group</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: 그룹을 만듦</translation>
    </message>
    <message>
        <source>%1 joined by a link</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: 링크로 참여함</translation>
    </message>
    <message>
        <source>%1 joined by an invitation</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: 초대로 참여함</translation>
    </message>
    <message>
        <source>%1 joined from the community</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: 커뮤니티에서 참여함</translation>
    </message>
    <message>
        <source>%1 made %2 an admin</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: 관리자로 지정함: %2</translation>
    </message>
    <message>
        <source>%1 is now an admin</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: 관리자가 됨</translation>
    </message>
    <message>
        <source>You are now an admin</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>이제 관리자입니다</translation>
    </message>
    <message>
        <source>You are no longer an admin</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>더 이상 관리자가 아닙니다</translation>
    </message>
    <message>
        <source>%1 changed the group description</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: 그룹 설명을 변경함</translation>
    </message>
    <message>
        <source>%1 deleted the group description</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: 그룹 설명을 삭제함</translation>
    </message>
    <message>
        <source>%1 allowed only admins to edit the group</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: 관리자만 그룹을 편집하도록 허용함</translation>
    </message>
    <message>
        <source>%1 allowed all members to edit the group</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: 모든 멤버가 그룹을 편집하도록 허용함</translation>
    </message>
    <message>
        <source>%1 allowed only admins to send messages</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: 관리자만 메시지를 보내도록 허용함</translation>
    </message>
    <message>
        <source>%1 allowed all members to send messages</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: 모든 멤버가 메시지를 보내도록 허용함</translation>
    </message>
    <message>
        <source>%1 allowed only admins to add members</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: 관리자만 멤버를 추가하도록 허용함</translation>
    </message>
    <message>
        <source>%1 changed disappearing messages</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: 사라지는 메시지 설정을 변경함</translation>
    </message>
    <message>
        <source>%1 turned off disappearing messages</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: 사라지는 메시지를 끔</translation>
    </message>
    <message>
        <source>%1 made messages disappear after %2 hours</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a number, 2 or more.</extracomment>
        <translation>%1: 메시지가 %2시간 후에 사라지도록 설정함</translation>
    </message>
    <message>
        <source>%1 made messages disappear after %2 days</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a number, 2 or more.</extracomment>
        <translation>%1: 메시지가 %2일 후에 사라지도록 설정함</translation>
    </message>
    <message>
        <source>%1 deleted a message</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: 메시지를 삭제함</translation>
    </message>
    <message>
        <source>A message of %1 has not arrived yet</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: 메시지가 아직 도착하지 않음</translation>
    </message>
    <message>
        <source>The security code of %1 changed</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: 보안 코드가 변경됨</translation>
    </message>
    <message>
        <source>%1 was blocked</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: 차단됨</translation>
    </message>
    <message>
        <source>%1 was unblocked</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: 차단 해제됨</translation>
    </message>
    <message>
        <source>Messages and calls are encrypted from end to end</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>메시지와 통화는 종단 간 암호화됩니다</translation>
    </message>
    <message>
        <source>Notice about a business account</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>비즈니스 계정 안내</translation>
    </message>
    <message>
        <source>Group call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>그룹 통화</translation>
    </message>
    <message>
        <source>Call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>통화</translation>
    </message>
    <message>
        <source>The channel was created</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>채널이 만들어짐</translation>
    </message>
    <message>
        <source>The privacy of the channel changed</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>채널의 개인정보 설정이 변경됨</translation>
    </message>
    <message>
        <source>The channel was changed</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>채널이 변경됨</translation>
    </message>
    <message>
        <source>Message of a business</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>비즈니스 메시지</translation>
    </message>
    <message>
        <source>Invitation to a group</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>그룹 초대</translation>
    </message>
    <message>
        <source>Product</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>상품</translation>
    </message>
    <message>
        <source>Album</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>앨범</translation>
    </message>
    <message>
        <source>Voice message</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>음성 메시지</translation>
    </message>
    <message>
        <source>Contact card</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>연락처</translation>
    </message>
    <message>
        <source>Document</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>문서</translation>
    </message>
    <message>
        <source>Forwarded</source>
        <extracomment>Stands above a message that was written by somebody else.</extracomment>
        <translation>전달됨</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>Title of the chat with the short-lived posts of all people.</extracomment>
        <translation>상태</translation>
    </message>
    <message>
        <source>%1: files of messages that are not in the backup: %2</source>
        <extracomment>A remark on a backup: %1 is the name of a database. %2 is a number.</extracomment>
        <translation>%1: 백업에 없는 메시지 파일: %2</translation>
    </message>
    <message>
        <source>Albums</source>
        <extracomment>Column: the albums that a photo is in.</extracomment>
        <translation>앨범</translation>
    </message>
    <message>
        <source>Photo</source>
        <extracomment>Type of a picture of the camera roll.</extracomment>
        <translation>사진</translation>
    </message>
    <message>
        <source>Video</source>
        <extracomment>Type of a film of the camera roll.</extracomment>
        <translation>비디오</translation>
    </message>
    <message>
        <source>Panorama</source>
        <extracomment>Type of a photo.</extracomment>
        <translation>파노라마</translation>
    </message>
    <message>
        <source>Live Photo</source>
        <extracomment>Type of a photo: a picture with a short film.</extracomment>
        <translation>Live Photo</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <extracomment>Type of a photo.</extracomment>
        <translation>스크린샷</translation>
    </message>
    <message>
        <source>Slow motion</source>
        <extracomment>Type of a film.</extracomment>
        <translation>슬로 모션</translation>
    </message>
    <message>
        <source>Time-lapse</source>
        <extracomment>Type of a film.</extracomment>
        <translation>타임랩스</translation>
    </message>
    <message>
        <source>Favourite</source>
        <extracomment>Mark of a photo.</extracomment>
        <translation>즐겨찾는 항목</translation>
    </message>
    <message>
        <source>Hidden</source>
        <extracomment>Mark of a photo that the phone shows in the album of hidden ones only.</extracomment>
        <translation>가려짐</translation>
    </message>
    <message>
        <source>Edited</source>
        <extracomment>Mark of a photo: this is the version that its owner has edited.</extracomment>
        <translation>편집됨</translation>
    </message>
    <message>
        <source>%1 (edited)</source>
        <extracomment>Name of a file without its ending: the edited version of the photo %1.</extracomment>
        <translation>%1 (편집됨)</translation>
    </message>
    <message>
        <source>Photos and videos of which the backup has small previews only: %1</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>백업에 작은 미리보기만 있는 사진 및 비디오: %1</translation>
    </message>
    <message>
        <source>Photos and videos of the library that are not in the backup: %1</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>백업에 없는 보관함의 사진 및 비디오: %1</translation>
    </message>
    <message>
        <source>Recordings that are not in the backup: %1</source>
        <extracomment>%1 is a number; voice memos, or messages on the answering machine.</extracomment>
        <translation>백업에 없는 녹음: %1</translation>
    </message>
    <message>
        <source>App</source>
        <extracomment>Column: the app that a file belongs to.</extracomment>
        <translation>앱</translation>
    </message>
    <message>
        <source>Place</source>
        <extracomment>Column: the directory of an app&apos;s file; of an event, where it takes place.</extracomment>
        <translation>위치</translation>
    </message>
</context>
<context>
    <name>ExportCSVFile_Google</name>
    <message>
        <source>for Google</source>
        <extracomment>End of a file name: &quot;Anna&apos;s Contacts for Google&quot;.</extracomment>
        <translation>Google용</translation>
    </message>
</context>
<context>
    <name>ExportCSVFile_Outlook</name>
    <message>
        <source>for Outlook</source>
        <extracomment>End of a file name: &quot;Anna&apos;s Contacts for Outlook&quot;.</extracomment>
        <translation>Outlook용</translation>
    </message>
</context>
<context>
    <name>ExportVCFFile</name>
    <message>
        <source>for iCloud</source>
        <extracomment>End of a file name: &quot;Anna&apos;s Contacts for iCloud&quot;.</extracomment>
        <translation>iCloud용</translation>
    </message>
    <message>
        <source>for Mac</source>
        <extracomment>End of a file name: &quot;Anna&apos;s Contacts for Mac&quot;.</extracomment>
        <translation>Mac용</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name>DataExport</name>
    <message>
        <source>%1&apos;s %2</source>
        <extracomment>Title of a page: %1 is a person&apos;s name, %2 the name of a category, such as Messages.</extracomment>
        <translation>%2 de %1</translation>
    </message>
    <message>
        <source>in common use</source>
        <extracomment>Part of a file name, after the category: contacts in a form that any program reads.</extracomment>
        <translation>para uso geral</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefone</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Type</source>
        <extracomment>Column: whether a message was sent or received, or a call came in or went out.</extracomment>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Content</source>
        <extracomment>Column: the text of a message or of a note.</extracomment>
        <translation>Conteúdo</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>A message whose sending was never completed, or a conversation or a caller without a name.</extracomment>
        <translation>Desconhecido</translation>
    </message>
    <message>
        <source>Sent</source>
        <extracomment>Of a message.</extracomment>
        <translation>Enviada</translation>
    </message>
    <message>
        <source>Received</source>
        <extracomment>Of a message.</extracomment>
        <translation>Recebida</translation>
    </message>
    <message>
        <source>Name: %1</source>
        <translation>Nome: %1</translation>
    </message>
    <message>
        <source>Phone: %1</source>
        <translation>Telefone: %1</translation>
    </message>
    <message>
        <source>Email: %1</source>
        <translation>E-mail: %1</translation>
    </message>
    <message>
        <source>Date: %1</source>
        <translation>Data: %1</translation>
    </message>
    <message>
        <source>Chat</source>
        <extracomment>Column: the name of a conversation.</extracomment>
        <translation>Conversa</translation>
    </message>
    <message>
        <source>Chat: %1</source>
        <translation>Conversa: %1</translation>
    </message>
    <message>
        <source>Group Event</source>
        <extracomment>Of a line in a conversation: somebody joined, left, and the like.</extracomment>
        <translation>Evento do grupo</translation>
    </message>
    <message>
        <source>Fail</source>
        <extracomment>Of a message that could not be sent.</extracomment>
        <translation>Falha</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Detalhes</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Apelido</translation>
    </message>
    <message>
        <source>Wechat ID</source>
        <extracomment>The name by which a person can be found there.</extracomment>
        <translation>ID do WeChat</translation>
    </message>
    <message>
        <source>WXID</source>
        <extracomment>The inner name of an account; not to be translated.</extracomment>
        <translation>WXID</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Região</translation>
    </message>
    <message>
        <source>What&apos;s Up</source>
        <extracomment>A line that a person shows beside the name.</extracomment>
        <translation>Recado</translation>
    </message>
    <message>
        <source>mobile</source>
        <extracomment>Label of a telephone number.</extracomment>
        <translation>celular</translation>
    </message>
    <message>
        <source>iPhone</source>
        <translation>iPhone</translation>
    </message>
    <message>
        <source>home</source>
        <extracomment>Label of a number, an address and the like.</extracomment>
        <translation>casa</translation>
    </message>
    <message>
        <source>work</source>
        <extracomment>Label of a number, an address and the like.</extracomment>
        <translation>trabalho</translation>
    </message>
    <message>
        <source>anniversary</source>
        <extracomment>Label of a date: a day that returns each year, not a birthday.</extracomment>
        <translation>data comemorativa</translation>
    </message>
    <message>
        <source>other</source>
        <extracomment>Label of a number, an address and the like.</extracomment>
        <translation>outro</translation>
    </message>
    <message>
        <source>main</source>
        <extracomment>Label of a telephone number.</extracomment>
        <translation>principal</translation>
    </message>
    <message>
        <source>other fax</source>
        <translation>outro fax</translation>
    </message>
    <message>
        <source>home fax</source>
        <translation>fax de casa</translation>
    </message>
    <message>
        <source>work fax</source>
        <translation>fax do trabalho</translation>
    </message>
    <message>
        <source>pager</source>
        <translation>pager</translation>
    </message>
    <message>
        <source>home page</source>
        <extracomment>Label of a web address.</extracomment>
        <translation>página web</translation>
    </message>
    <message>
        <source>mother</source>
        <translation>mãe</translation>
    </message>
    <message>
        <source>father</source>
        <translation>pai</translation>
    </message>
    <message>
        <source>parent</source>
        <extracomment>Mother or father.</extracomment>
        <translation>pai ou mãe</translation>
    </message>
    <message>
        <source>brother</source>
        <translation>irmão</translation>
    </message>
    <message>
        <source>sister</source>
        <translation>irmã</translation>
    </message>
    <message>
        <source>child</source>
        <translation>filho ou filha</translation>
    </message>
    <message>
        <source>friend</source>
        <extracomment>A woman or a man.</extracomment>
        <translation>amigo ou amiga</translation>
    </message>
    <message>
        <source>spouse</source>
        <translation>cônjuge</translation>
    </message>
    <message>
        <source>partner</source>
        <extracomment>A woman or a man with whom somebody lives.</extracomment>
        <translation>parceiro ou parceira</translation>
    </message>
    <message>
        <source>assistant</source>
        <extracomment>A person at work.</extracomment>
        <translation>assistente</translation>
    </message>
    <message>
        <source>manager</source>
        <extracomment>A person at work.</extracomment>
        <translation>gerente</translation>
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
        <translation>aniversário</translation>
    </message>
    <message>
        <source>School</source>
        <translation>Escola</translation>
    </message>
    <message>
        <source>Elder Brother</source>
        <translation>Irmão mais velho</translation>
    </message>
    <message>
        <source>Elder Sister</source>
        <translation>Irmã mais velha</translation>
    </message>
    <message>
        <source>Younger Brother</source>
        <translation>Irmão mais novo</translation>
    </message>
    <message>
        <source>Younger Sister</source>
        <translation>Irmã mais nova</translation>
    </message>
    <message>
        <source>Husband</source>
        <translation>Marido</translation>
    </message>
    <message>
        <source>Wife</source>
        <translation>Esposa</translation>
    </message>
    <message>
        <source>Son</source>
        <translation>Filho</translation>
    </message>
    <message>
        <source>Daughter</source>
        <translation>Filha</translation>
    </message>
    <message>
        <source>Colleague</source>
        <translation>Colega</translation>
    </message>
    <message>
        <source>Address</source>
        <extracomment>A postal address.</extracomment>
        <translation>Endereço</translation>
    </message>
    <message>
        <source>URL</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>Related Name</source>
        <extracomment>A person who belongs to this one: mother, assistant and so on.</extracomment>
        <translation>Nome relacionado</translation>
    </message>
    <message>
        <source>Social Profile</source>
        <translation>Perfil social</translation>
    </message>
    <message>
        <source>Instant Message</source>
        <extracomment>Heading over accounts of messengers.</extracomment>
        <translation>Mensagem instantânea</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>Aniversário</translation>
    </message>
    <message>
        <source>Notes</source>
        <extracomment>Heading: what was noted on a contact or on a reminder.</extracomment>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Reading List</source>
        <extracomment>Pages to be read later, in the browser.</extracomment>
        <translation>Lista de Leitura</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>Pages that were visited, in the browser.</extracomment>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>Locked</source>
        <extracomment>Of a note that only its password opens.</extracomment>
        <translation>Bloqueada</translation>
    </message>
    <message>
        <source>You</source>
        <extracomment>Who did something: stands for %1 in the lines below.</extracomment>
        <translation>Você</translation>
    </message>
    <message>
        <source>you</source>
        <extracomment>Who was added or removed: stands for %2 in two of the lines below.</extracomment>
        <translation>você</translation>
    </message>
    <message>
        <source>Someone</source>
        <extracomment>Stands for a person without name and number.</extracomment>
        <translation>Alguém</translation>
    </message>
    <message>
        <source>a message</source>
        <extracomment>What a reaction is about.</extracomment>
        <translation>uma mensagem</translation>
    </message>
    <message>
        <source>an attachment</source>
        <extracomment>What a reaction is about.</extracomment>
        <translation>um anexo</translation>
    </message>
    <message>
        <source>%1 edited the message. Before: %2</source>
        <extracomment>%1 may be &quot;You&quot;; %2 is what the message said, in quotation marks.</extracomment>
        <translation>%1 editou a mensagem. Antes: %2</translation>
    </message>
    <message>
        <source>%1 placed a sticker on %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1 colocou uma figurinha em: %2</translation>
    </message>
    <message>
        <source>%1 loved %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;. A heart on a message.</extracomment>
        <translation>%1 amou %2</translation>
    </message>
    <message>
        <source>%1 liked %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1 gostou de: %2</translation>
    </message>
    <message>
        <source>%1 disliked %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1 não gostou de: %2</translation>
    </message>
    <message>
        <source>%1 laughed at %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1 riu de: %2</translation>
    </message>
    <message>
        <source>%1 emphasized %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;. Exclamation marks on a message.</extracomment>
        <translation>%1 enfatizou %2</translation>
    </message>
    <message>
        <source>%1 questioned %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;. A question mark on a message.</extracomment>
        <translation>%1 questionou %2</translation>
    </message>
    <message>
        <source>%1 reacted with a sticker to %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1 reagiu com uma figurinha a: %2</translation>
    </message>
    <message>
        <source>%1 voted on %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;. %2 is a poll.</extracomment>
        <translation>%1 votou em: %2</translation>
    </message>
    <message>
        <source>%1 reacted with %2 to %3</source>
        <extracomment>%1 is a name, or &quot;You&quot;. %2 is an emoji.</extracomment>
        <translation>%1 reagiu com %2 a: %3</translation>
    </message>
    <message>
        <source>%1 reacted to %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1 reagiu a: %2</translation>
    </message>
    <message>
        <source>%1 removed %2 from the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;. %2 is a name, or &quot;you&quot;.</extracomment>
        <translation>%1 removeu %2 da conversa</translation>
    </message>
    <message>
        <source>%1 changed the phone number</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1 mudou de número de telefone</translation>
    </message>
    <message>
        <source>%1 added %2 to the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;. %2 is a name, or &quot;you&quot;.</extracomment>
        <translation>%1 adicionou %2 à conversa</translation>
    </message>
    <message>
        <source>%1 removed the name of the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1 removeu o nome da conversa</translation>
    </message>
    <message>
        <source>%1 named the conversation %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;. %2 is the new name, in quotation marks.</extracomment>
        <translation>%1 deu à conversa o nome %2</translation>
    </message>
    <message>
        <source>%1 left the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1 saiu da conversa</translation>
    </message>
    <message>
        <source>%1 changed the group photo</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1 mudou a foto do grupo</translation>
    </message>
    <message>
        <source>%1 removed the group photo</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1 removeu a foto do grupo</translation>
    </message>
    <message>
        <source>%1 changed the background of the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1 mudou o fundo da conversa</translation>
    </message>
    <message>
        <source>%1 removed the background of the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1 removeu o fundo da conversa</translation>
    </message>
    <message>
        <source>%1 changed the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1 alterou a conversa</translation>
    </message>
    <message>
        <source>%1 started sharing the location</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1 começou a compartilhar a localização</translation>
    </message>
    <message>
        <source>%1 stopped sharing the location</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1 parou de compartilhar a localização</translation>
    </message>
    <message>
        <source>%1 kept an audio message</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1 guardou uma mensagem de áudio</translation>
    </message>
    <message>
        <source>%1 started a call or a shared activity</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1 iniciou uma chamada ou uma atividade compartilhada</translation>
    </message>
    <message>
        <source>%1 unsent a message</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1 cancelou o envio de uma mensagem</translation>
    </message>
    <message>
        <source>Handwritten message</source>
        <translation>Mensagem manuscrita</translation>
    </message>
    <message>
        <source>Digital Touch message</source>
        <extracomment>Digital Touch is a name.</extracomment>
        <translation>Mensagem do Digital Touch</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>Pagamento</translation>
    </message>
    <message>
        <source>Location</source>
        <extracomment>A message that tells where somebody is.</extracomment>
        <translation>Localização</translation>
    </message>
    <message>
        <source>Fitness message</source>
        <extracomment>From the app that counts steps and training.</extracomment>
        <translation>Mensagem do Fitness</translation>
    </message>
    <message>
        <source>Shared photos</source>
        <translation>Fotos compartilhadas</translation>
    </message>
    <message>
        <source>Check In</source>
        <extracomment>An app tells others that somebody has arrived safely.</extracomment>
        <translation>Chegada</translation>
    </message>
    <message>
        <source>Poll</source>
        <translation>Enquete</translation>
    </message>
    <message>
        <source>App message</source>
        <translation>Mensagem de app</translation>
    </message>
    <message>
        <source>One attachment was never downloaded to the phone.</source>
        <translation>Um anexo nunca foi baixado no telefone.</translation>
    </message>
    <message>
        <source>%1 attachments were never downloaded to the phone.</source>
        <extracomment>%1 is 2 or more.</extracomment>
        <translation>%1 anexos nunca foram baixados no telefone.</translation>
    </message>
    <message>
        <source>%1: the table of conversations is damaged (%2); some messages may be missing.</source>
        <extracomment>%1 is a file, %2 what the database says.</extracomment>
        <translation>%1: a tabela de conversas está danificada (%2); algumas mensagens podem estar faltando.</translation>
    </message>
    <message>
        <source>%1: some messages cannot be read, the database is damaged (%2).</source>
        <extracomment>%1 is a file, %2 what the database says.</extracomment>
        <translation>%1: algumas mensagens não podem ser lidas, o banco de dados está danificado (%2).</translation>
    </message>
    <message>
        <source>The backup has no %1.</source>
        <extracomment>%1 is a file.</extracomment>
        <translation>O backup não contém %1.</translation>
    </message>
    <message>
        <source>%1 of the backup is not of a kind that can be read.</source>
        <extracomment>%1 is a file.</extracomment>
        <translation>O arquivo %1 do backup não é de um tipo legível.</translation>
    </message>
    <message>
        <source>this is no database of a kind that can be read; it has the tables %1</source>
        <extracomment>Follows the name of the file and a colon; %1 is a list of names.</extracomment>
        <translation>não é um banco de dados de um tipo legível; contém as tabelas %1</translation>
    </message>
    <message>
        <source>Number</source>
        <extracomment>Column: a phone number or e-mail address.</extracomment>
        <translation>Número</translation>
    </message>
    <message>
        <source>Duration</source>
        <extracomment>Column: how long a call was.</extracomment>
        <translation>Duração</translation>
    </message>
    <message>
        <source>Service</source>
        <extracomment>Column: what carried a call, such as Phone or FaceTime Audio.</extracomment>
        <translation>Serviço</translation>
    </message>
    <message>
        <source>Incoming</source>
        <extracomment>Type of a call.</extracomment>
        <translation>Recebida</translation>
    </message>
    <message>
        <source>Outgoing</source>
        <extracomment>Type of a call.</extracomment>
        <translation>Efetuada</translation>
    </message>
    <message>
        <source>Missed</source>
        <extracomment>Type of a call: nobody answered it.</extracomment>
        <translation>Perdida</translation>
    </message>
    <message>
        <source>Missed voice call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Chamada de voz perdida</translation>
    </message>
    <message>
        <source>Missed video call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Chamada de vídeo perdida</translation>
    </message>
    <message>
        <source>Incoming voice call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Chamada de voz recebida</translation>
    </message>
    <message>
        <source>Incoming video call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Chamada de vídeo recebida</translation>
    </message>
    <message>
        <source>Outgoing voice call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Chamada de voz efetuada</translation>
    </message>
    <message>
        <source>Outgoing video call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Chamada de vídeo efetuada</translation>
    </message>
    <message>
        <source>[Unknown message]</source>
        <extracomment>A line in a chat: a message of a kind that cannot be shown.</extracomment>
        <translation>[Mensagem desconhecida]</translation>
    </message>
    <message>
        <source>[System message]</source>
        <extracomment>A line in a chat that the chat program itself wrote.</extracomment>
        <translation>[Mensagem do sistema]</translation>
    </message>
    <message>
        <source>[Sticker]</source>
        <extracomment>In a chat, for a sticker whose picture is not there.</extracomment>
        <translation>[Figurinha]</translation>
    </message>
    <message>
        <source>[Album]</source>
        <extracomment>In a chat, for an album of pictures that is not there itself.</extracomment>
        <translation>[Álbum]</translation>
    </message>
    <message>
        <source>[Album or post]</source>
        <extracomment>In a chat, for what cannot be shown itself.</extracomment>
        <translation>[Álbum ou publicação]</translation>
    </message>
    <message>
        <source>[Contact]</source>
        <extracomment>In a chat, for the card of a contact of which nothing is known.</extracomment>
        <translation>[Contato]</translation>
    </message>
    <message>
        <source>[Call]</source>
        <extracomment>A line in a chat: a call of which nothing is known.</extracomment>
        <translation>[Chamada]</translation>
    </message>
    <message>
        <source>%1 Video</source>
        <extracomment>Service of a call: %1 is the name of an app.</extracomment>
        <translation>%1 de Vídeo</translation>
    </message>
    <message>
        <source>A message was recalled</source>
        <extracomment>A line in a chat: its sender took a message back.</extracomment>
        <translation>Uma mensagem foi recolhida</translation>
    </message>
    <message>
        <source>Friend request from %1</source>
        <extracomment>A line in a chat. %1: a name.</extracomment>
        <translation>Solicitação de amizade de %1</translation>
    </message>
    <message>
        <source>Live location</source>
        <extracomment>In a chat, for a place that was shared for a while.</extracomment>
        <translation>Localização em tempo real</translation>
    </message>
    <message>
        <source>Other app</source>
        <extracomment>Service of a call: an app that is not known by name.</extracomment>
        <translation>Outro app</translation>
    </message>
    <message>
        <source>FaceTime Audio</source>
        <extracomment>Service of a call.</extracomment>
        <translation>FaceTime de Áudio</translation>
    </message>
    <message>
        <source>FaceTime Video</source>
        <extracomment>Service of a call.</extracomment>
        <translation>FaceTime de Vídeo</translation>
    </message>
    <message>
        <source>Title</source>
        <extracomment>Column: of a reminder, of a note or of a web page.</extracomment>
        <translation>Título</translation>
    </message>
    <message>
        <source>List</source>
        <extracomment>Column: the list in which a reminder stands.</extracomment>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Due date</source>
        <extracomment>Column: when a reminder is due.</extracomment>
        <translation>Vencimento</translation>
    </message>
    <message>
        <source>Completed</source>
        <extracomment>Column: when a reminder was completed, or Yes.</extracomment>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Priority</source>
        <extracomment>Column: High, Medium or Low.</extracomment>
        <translation>Prioridade</translation>
    </message>
    <message>
        <source>Marks</source>
        <extracomment>Column of a table of reminders: Flagged, Repeats or both.</extracomment>
        <translation>Marcas</translation>
    </message>
    <message>
        <source>Starts</source>
        <extracomment>Column: when an event begins.</extracomment>
        <translation>Início</translation>
    </message>
    <message>
        <source>Ends</source>
        <extracomment>Column: when an event ends.</extracomment>
        <translation>Término</translation>
    </message>
    <message>
        <source>Calendar</source>
        <extracomment>Column: the calendar that an event belongs to; also the name of the one that each phone has.</extracomment>
        <translation>Calendário</translation>
    </message>
    <message>
        <source>Every day</source>
        <extracomment>How often an event comes again.</extracomment>
        <translation>Todos os dias</translation>
    </message>
    <message>
        <source>Every week</source>
        <extracomment>How often an event comes again.</extracomment>
        <translation>Toda semana</translation>
    </message>
    <message>
        <source>Every month</source>
        <extracomment>How often an event comes again.</extracomment>
        <translation>Todo mês</translation>
    </message>
    <message>
        <source>Every year</source>
        <extracomment>How often an event comes again.</extracomment>
        <translation>Todo ano</translation>
    </message>
    <message>
        <source>Every %1 days</source>
        <extracomment>%1 is a number from 2 on.</extracomment>
        <translation>A cada %1 dias</translation>
    </message>
    <message>
        <source>Every %1 weeks</source>
        <extracomment>%1 is a number from 2 on.</extracomment>
        <translation>A cada %1 semanas</translation>
    </message>
    <message>
        <source>Every %1 months</source>
        <extracomment>%1 is a number from 2 on.</extracomment>
        <translation>A cada %1 meses</translation>
    </message>
    <message>
        <source>Every %1 years</source>
        <extracomment>%1 is a number from 2 on.</extracomment>
        <translation>A cada %1 anos</translation>
    </message>
    <message>
        <source>%1 until
%2</source>
        <extracomment>How often and up to which day an event comes again: Every week until 2024-07-16.</extracomment>
        <translation>%1 até
%2</translation>
    </message>
    <message>
        <source>Attendees: %1</source>
        <extracomment>Line of the details of an event: the names of those who take part.</extracomment>
        <translation>Participantes: %1</translation>
    </message>
    <message>
        <source>Alert: %1</source>
        <extracomment>Line of the details of an event: when the phone rings for it.</extracomment>
        <translation>Alerta: %1</translation>
    </message>
    <message>
        <source>Details</source>
        <extracomment>Column: what else there is to an event, such as attendees and alerts.</extracomment>
        <translation>Detalhes</translation>
    </message>
    <message>
        <source>Accepted</source>
        <extracomment>Answer to an invitation, beside a name or as a mark of an event.</extracomment>
        <translation>Aceito</translation>
    </message>
    <message>
        <source>Declined</source>
        <extracomment>Answer to an invitation, beside a name or as a mark of an event.</extracomment>
        <translation>Recusado</translation>
    </message>
    <message>
        <source>Maybe</source>
        <extracomment>Answer to an invitation, beside a name or as a mark of an event.</extracomment>
        <translation>Talvez</translation>
    </message>
    <message>
        <source>Organizer</source>
        <extracomment>Beside the name of the person who invites to an event.</extracomment>
        <translation>Organizador</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <extracomment>Mark of an event that does not take place.</extracomment>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>Tentative</source>
        <extracomment>Mark of an event that is not yet certain.</extracomment>
        <translation>Provisório</translation>
    </message>
    <message>
        <source>Invitation</source>
        <extracomment>Mark of an event that the owner of the phone was invited to and has not answered.</extracomment>
        <translation>Convite</translation>
    </message>
    <message>
        <source>Flagged</source>
        <extracomment>Mark of a reminder: the owner flagged it.</extracomment>
        <translation>Sinalizado</translation>
    </message>
    <message>
        <source>Repeats</source>
        <extracomment>Mark of a reminder: it comes again. Also the column that tells how often an event does.</extracomment>
        <translation>Repete</translation>
    </message>
    <message>
        <source>High</source>
        <extracomment>Priority of a reminder.</extracomment>
        <translation>Alta</translation>
    </message>
    <message>
        <source>Medium</source>
        <extracomment>Priority of a reminder.</extracomment>
        <translation>Média</translation>
    </message>
    <message>
        <source>Low</source>
        <extracomment>Priority of a reminder.</extracomment>
        <translation>Baixa</translation>
    </message>
    <message>
        <source>Yes</source>
        <extracomment>In the column Completed: a reminder of which nobody knows when.</extracomment>
        <translation>Sim</translation>
    </message>
    <message>
        <source>Reminders</source>
        <extracomment>Name of the list of reminders that each phone has.</extracomment>
        <translation>Lembretes</translation>
    </message>
    <message>
        <source>Folder</source>
        <extracomment>Column: the folder of a note.</extracomment>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>Created</source>
        <extracomment>Column: when a note was begun.</extracomment>
        <translation>Criada</translation>
    </message>
    <message>
        <source>Modified</source>
        <extracomment>Column: when a note was changed.</extracomment>
        <translation>Modificada</translation>
    </message>
    <message>
        <source>Recently Deleted</source>
        <extracomment>The folder of deleted notes.</extracomment>
        <translation>Apagadas</translation>
    </message>
    <message>
        <source>Attachment</source>
        <extracomment>Stands in a note for an attachment without a name.</extracomment>
        <translation>Anexo</translation>
    </message>
    <message>
        <source>Drawing</source>
        <extracomment>The name of a drawing in a note that has none of its own; becomes a file name.</extracomment>
        <translation>Desenho</translation>
    </message>
    <message>
        <source>Scan</source>
        <extracomment>The name of scanned pages in a note that have none of their own; becomes a file name.</extracomment>
        <translation>Documento escaneado</translation>
    </message>
    <message>
        <source>Web address</source>
        <extracomment>Column: the address of a web page.</extracomment>
        <translation>Endereço da web</translation>
    </message>
    <message>
        <source>Label</source>
        <extracomment>Column: what stands before a link, a date or the name of a site.</extracomment>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>The note “%1” names an attachment that its store does not have.</source>
        <extracomment>%1 is the title of a note.</extracomment>
        <translation>A nota “%1” cita um anexo que não está no banco de dados.</translation>
    </message>
    <message>
        <source>%1 more notes name attachments that their store does not have.</source>
        <translation>Outras %1 notas citam anexos que não estão no banco de dados.</translation>
    </message>
    <message>
        <source>A table in the note “%1” cannot be read: %2</source>
        <extracomment>%1 is the title of a note. %2 is the reason.</extracomment>
        <translation>Uma tabela da nota “%1” não pode ser lida: %2</translation>
    </message>
    <message>
        <source>%1 more notes have tables that cannot be read.</source>
        <translation>Outras %1 notas têm tabelas que não podem ser lidas.</translation>
    </message>
    <message>
        <source>The text of the note “%1” cannot be read: %2</source>
        <extracomment>%1 is the title of a note. %2 is the reason.</extracomment>
        <translation>O texto da nota “%1” não pode ser lido: %2</translation>
    </message>
    <message>
        <source>%1 more notes have texts that cannot be read.</source>
        <translation>Outras %1 notas têm um texto que não pode ser lido.</translation>
    </message>
    <message>
        <source>The backup has no file “%1” of the note “%2”.</source>
        <translation>O backup não contém o arquivo “%1” da nota “%2”.</translation>
    </message>
    <message>
        <source>%1 more files of notes are missing in the backup.</source>
        <translation>Faltam outros %1 arquivos de notas no backup.</translation>
    </message>
    <message>
        <source>One note was never downloaded to the phone.</source>
        <translation>Uma nota nunca foi baixada no telefone.</translation>
    </message>
    <message>
        <source>%1 notes were never downloaded to the phone.</source>
        <extracomment>%1 is 2 or more.</extracomment>
        <translation>%1 notas nunca foram baixadas no telefone.</translation>
    </message>
    <message>
        <source>One attachment of a locked note cannot be read.</source>
        <translation>Um anexo de uma nota bloqueada não pode ser lido.</translation>
    </message>
    <message>
        <source>%1 attachments of locked notes cannot be read.</source>
        <extracomment>%1 is 2 or more.</extracomment>
        <translation>%1 anexos de notas bloqueadas não podem ser lidos.</translation>
    </message>
    <message>
        <source>%1 has no column %2; it is read as empty.</source>
        <extracomment>%1 is a file, a database.</extracomment>
        <translation>%1 não tem a coluna %2; ela é lida como vazia.</translation>
    </message>
    <message>
        <source>%1 is damaged; what can be read of it is there.</source>
        <extracomment>%1 is a file, a database.</extracomment>
        <translation>%1 está danificado; o que pode ser lido está presente.</translation>
    </message>
    <message>
        <source>%1 has no table %2.</source>
        <extracomment>%1 is a file, a database.</extracomment>
        <translation>%1 não tem a tabela %2.</translation>
    </message>
    <message>
        <source>the store is damaged</source>
        <extracomment>A reason, after a colon.</extracomment>
        <translation>o banco de dados está danificado</translation>
    </message>
    <message>
        <source>No Name</source>
        <extracomment>Stands for the name of a contact that has none.</extracomment>
        <translation>Sem nome</translation>
    </message>
    <message>
        <source>Chinese birthday</source>
        <extracomment>Label of a date.</extracomment>
        <translation>aniversário (chinês)</translation>
    </message>
    <message>
        <source>Hebrew birthday</source>
        <extracomment>Label of a date.</extracomment>
        <translation>aniversário (hebraico)</translation>
    </message>
    <message>
        <source>Islamic birthday</source>
        <extracomment>Label of a date.</extracomment>
        <translation>aniversário (islâmico)</translation>
    </message>
    <message>
        <source>Month %1, day %2</source>
        <extracomment>A day of the Chinese calendar; the year may follow after a comma.</extracomment>
        <translation>mês %1, dia %2</translation>
    </message>
    <message>
        <source>Leap month %1, day %2</source>
        <extracomment>A day of the Chinese calendar, in a month that comes twice in its year.</extracomment>
        <translation>mês intercalar %1, dia %2</translation>
    </message>
    <message>
        <source>%1 added %2 to the community</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1 adicionou %2 à comunidade</translation>
    </message>
    <message>
        <source>%1 was added to the community</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1 passou a fazer parte da comunidade</translation>
    </message>
    <message>
        <source>%1 was added to the conversation</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1 passou a fazer parte da conversa</translation>
    </message>
    <message>
        <source>%1 was removed from the conversation</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1 deixou de fazer parte da conversa</translation>
    </message>
    <message>
        <source>%1 created the group</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1 criou o grupo</translation>
    </message>
    <message>
        <source>%1 joined by a link</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1 entrou por um link</translation>
    </message>
    <message>
        <source>%1 joined by an invitation</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1 entrou por convite</translation>
    </message>
    <message>
        <source>%1 joined from the community</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1 entrou pela comunidade</translation>
    </message>
    <message>
        <source>%1 made %2 an admin</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1 tornou %2 administrador</translation>
    </message>
    <message>
        <source>%1 is now an admin</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1 agora é administrador</translation>
    </message>
    <message>
        <source>You are now an admin</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Agora você é administrador</translation>
    </message>
    <message>
        <source>You are no longer an admin</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Você não é mais administrador</translation>
    </message>
    <message>
        <source>%1 changed the group description</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1 mudou a descrição do grupo</translation>
    </message>
    <message>
        <source>%1 deleted the group description</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1 apagou a descrição do grupo</translation>
    </message>
    <message>
        <source>%1 allowed only admins to edit the group</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1 permitiu que só administradores editem o grupo</translation>
    </message>
    <message>
        <source>%1 allowed all members to edit the group</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1 permitiu que todos os membros editem o grupo</translation>
    </message>
    <message>
        <source>%1 allowed only admins to send messages</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1 permitiu que só administradores enviem mensagens</translation>
    </message>
    <message>
        <source>%1 allowed all members to send messages</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1 permitiu que todos os membros enviem mensagens</translation>
    </message>
    <message>
        <source>%1 allowed only admins to add members</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1 permitiu que só administradores adicionem membros</translation>
    </message>
    <message>
        <source>%1 changed disappearing messages</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1 mudou as mensagens temporárias</translation>
    </message>
    <message>
        <source>%1 turned off disappearing messages</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1 desativou as mensagens temporárias</translation>
    </message>
    <message>
        <source>%1 made messages disappear after %2 hours</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a number, 2 or more.</extracomment>
        <translation>%1 fez as mensagens desaparecerem após %2 horas</translation>
    </message>
    <message>
        <source>%1 made messages disappear after %2 days</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a number, 2 or more.</extracomment>
        <translation>%1 fez as mensagens desaparecerem após %2 dias</translation>
    </message>
    <message>
        <source>%1 deleted a message</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1 apagou uma mensagem</translation>
    </message>
    <message>
        <source>A message of %1 has not arrived yet</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>Uma mensagem de %1 ainda não chegou</translation>
    </message>
    <message>
        <source>The security code of %1 changed</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>O código de segurança de %1 mudou</translation>
    </message>
    <message>
        <source>%1 was blocked</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: contato bloqueado</translation>
    </message>
    <message>
        <source>%1 was unblocked</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: contato desbloqueado</translation>
    </message>
    <message>
        <source>Messages and calls are encrypted from end to end</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>As mensagens e chamadas são criptografadas de ponta a ponta</translation>
    </message>
    <message>
        <source>Notice about a business account</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Aviso sobre uma conta comercial</translation>
    </message>
    <message>
        <source>Group call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Chamada em grupo</translation>
    </message>
    <message>
        <source>Call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Chamada</translation>
    </message>
    <message>
        <source>The channel was created</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>O canal foi criado</translation>
    </message>
    <message>
        <source>The privacy of the channel changed</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>A privacidade do canal mudou</translation>
    </message>
    <message>
        <source>The channel was changed</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>O canal foi alterado</translation>
    </message>
    <message>
        <source>Message of a business</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Mensagem de uma empresa</translation>
    </message>
    <message>
        <source>Invitation to a group</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Convite para um grupo</translation>
    </message>
    <message>
        <source>Product</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Produto</translation>
    </message>
    <message>
        <source>Album</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Álbum</translation>
    </message>
    <message>
        <source>Voice message</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Mensagem de voz</translation>
    </message>
    <message>
        <source>Contact card</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Contato</translation>
    </message>
    <message>
        <source>Document</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Documento</translation>
    </message>
    <message>
        <source>Forwarded</source>
        <extracomment>Stands above a message that was written by somebody else.</extracomment>
        <translation>Encaminhada</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>Title of the chat with the short-lived posts of all people.</extracomment>
        <translation>Status</translation>
    </message>
    <message>
        <source>%1: files of messages that are not in the backup: %2</source>
        <extracomment>A remark on a backup: %1 is the name of a database. %2 is a number.</extracomment>
        <translation>%1: arquivos de mensagens que não estão no backup: %2</translation>
    </message>
    <message>
        <source>Albums</source>
        <extracomment>Column: the albums that a photo is in.</extracomment>
        <translation>Álbuns</translation>
    </message>
    <message>
        <source>Photo</source>
        <extracomment>Type of a picture of the camera roll.</extracomment>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Video</source>
        <extracomment>Type of a film of the camera roll.</extracomment>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Panorama</source>
        <extracomment>Type of a photo.</extracomment>
        <translation>Panorâmica</translation>
    </message>
    <message>
        <source>Live Photo</source>
        <extracomment>Type of a photo: a picture with a short film.</extracomment>
        <translation>Live Photo</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <extracomment>Type of a photo.</extracomment>
        <translation>Captura de tela</translation>
    </message>
    <message>
        <source>Slow motion</source>
        <extracomment>Type of a film.</extracomment>
        <translation>Câmera lenta</translation>
    </message>
    <message>
        <source>Time-lapse</source>
        <extracomment>Type of a film.</extracomment>
        <translation>Lapso de tempo</translation>
    </message>
    <message>
        <source>Favourite</source>
        <extracomment>Mark of a photo.</extracomment>
        <translation>Favorita</translation>
    </message>
    <message>
        <source>Hidden</source>
        <extracomment>Mark of a photo that the phone shows in the album of hidden ones only.</extracomment>
        <translation>Oculta</translation>
    </message>
    <message>
        <source>Edited</source>
        <extracomment>Mark of a photo: this is the version that its owner has edited.</extracomment>
        <translation>Editada</translation>
    </message>
    <message>
        <source>%1 (edited)</source>
        <extracomment>Name of a file without its ending: the edited version of the photo %1.</extracomment>
        <translation>%1 (editada)</translation>
    </message>
    <message>
        <source>Photos and videos of which the backup has small previews only: %1</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>Fotos e vídeos dos quais o backup tem apenas pequenas pré-visualizações: %1</translation>
    </message>
    <message>
        <source>Photos and videos of the library that are not in the backup: %1</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>Fotos e vídeos da fototeca que não estão no backup: %1</translation>
    </message>
    <message>
        <source>Recordings that are not in the backup: %1</source>
        <extracomment>%1 is a number; voice memos, or messages on the answering machine.</extracomment>
        <translation>Gravações que não estão no backup: %1</translation>
    </message>
    <message>
        <source>App</source>
        <extracomment>Column: the app that a file belongs to.</extracomment>
        <translation>App</translation>
    </message>
    <message>
        <source>Place</source>
        <extracomment>Column: the directory of an app&apos;s file; of an event, where it takes place.</extracomment>
        <translation>Local</translation>
    </message>
</context>
<context>
    <name>ExportCSVFile_Google</name>
    <message>
        <source>for Google</source>
        <extracomment>End of a file name: &quot;Anna&apos;s Contacts for Google&quot;.</extracomment>
        <translation>para Google</translation>
    </message>
</context>
<context>
    <name>ExportCSVFile_Outlook</name>
    <message>
        <source>for Outlook</source>
        <extracomment>End of a file name: &quot;Anna&apos;s Contacts for Outlook&quot;.</extracomment>
        <translation>para Outlook</translation>
    </message>
</context>
<context>
    <name>ExportVCFFile</name>
    <message>
        <source>for iCloud</source>
        <extracomment>End of a file name: &quot;Anna&apos;s Contacts for iCloud&quot;.</extracomment>
        <translation>para iCloud</translation>
    </message>
    <message>
        <source>for Mac</source>
        <extracomment>End of a file name: &quot;Anna&apos;s Contacts for Mac&quot;.</extracomment>
        <translation>para Mac</translation>
    </message>
</context>
</TS>

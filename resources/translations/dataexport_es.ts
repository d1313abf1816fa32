<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
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
        <translation>para uso general</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Teléfono</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Correo electrónico</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Type</source>
        <extracomment>Column: whether a message was sent or received, or a call came in or went out.</extracomment>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Content</source>
        <extracomment>Column: the text of a message or of a note.</extracomment>
        <translation>Contenido</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>A message whose sending was never completed, or a conversation or a caller without a name.</extracomment>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>Sent</source>
        <extracomment>Of a message.</extracomment>
        <translation>Enviado</translation>
    </message>
    <message>
        <source>Received</source>
        <extracomment>Of a message.</extracomment>
        <translation>Recibido</translation>
    </message>
    <message>
        <source>Name: %1</source>
        <translation>Nombre: %1</translation>
    </message>
    <message>
        <source>Phone: %1</source>
        <translation>Teléfono: %1</translation>
    </message>
    <message>
        <source>Email: %1</source>
        <translation>Correo electrónico: %1</translation>
    </message>
    <message>
        <source>Date: %1</source>
        <translation>Fecha: %1</translation>
    </message>
    <message>
        <source>Chat</source>
        <extracomment>Column: the name of a conversation.</extracomment>
        <translation>Chat</translation>
    </message>
    <message>
        <source>Chat: %1</source>
        <translation>Chat: %1</translation>
    </message>
    <message>
        <source>Group Event</source>
        <extracomment>Of a line in a conversation: somebody joined, left, and the like.</extracomment>
        <translation>Evento del grupo</translation>
    </message>
    <message>
        <source>Fail</source>
        <extracomment>Of a message that could not be sent.</extracomment>
        <translation>Fallido</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Wechat ID</source>
        <extracomment>The name by which a person can be found there.</extracomment>
        <translation>ID de WeChat</translation>
    </message>
    <message>
        <source>WXID</source>
        <extracomment>The inner name of an account; not to be translated.</extracomment>
        <translation>WXID</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Región</translation>
    </message>
    <message>
        <source>What&apos;s Up</source>
        <extracomment>A line that a person shows beside the name.</extracomment>
        <translation>Estado</translation>
    </message>
    <message>
        <source>mobile</source>
        <extracomment>Label of a telephone number.</extracomment>
        <translation>móvil</translation>
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
        <translation>trabajo</translation>
    </message>
    <message>
        <source>anniversary</source>
        <extracomment>Label of a date: a day that returns each year, not a birthday.</extracomment>
        <translation>aniversario</translation>
    </message>
    <message>
        <source>other</source>
        <extracomment>Label of a number, an address and the like.</extracomment>
        <translation>otro</translation>
    </message>
    <message>
        <source>main</source>
        <extracomment>Label of a telephone number.</extracomment>
        <translation>principal</translation>
    </message>
    <message>
        <source>other fax</source>
        <translation>otro fax</translation>
    </message>
    <message>
        <source>home fax</source>
        <translation>fax de casa</translation>
    </message>
    <message>
        <source>work fax</source>
        <translation>fax del trabajo</translation>
    </message>
    <message>
        <source>pager</source>
        <translation>localizador</translation>
    </message>
    <message>
        <source>home page</source>
        <extracomment>Label of a web address.</extracomment>
        <translation>página web</translation>
    </message>
    <message>
        <source>mother</source>
        <translation>madre</translation>
    </message>
    <message>
        <source>father</source>
        <translation>padre</translation>
    </message>
    <message>
        <source>parent</source>
        <extracomment>Mother or father.</extracomment>
        <translation>progenitor</translation>
    </message>
    <message>
        <source>brother</source>
        <translation>hermano</translation>
    </message>
    <message>
        <source>sister</source>
        <translation>hermana</translation>
    </message>
    <message>
        <source>child</source>
        <translation>hijo o hija</translation>
    </message>
    <message>
        <source>friend</source>
        <extracomment>A woman or a man.</extracomment>
        <translation>amigo o amiga</translation>
    </message>
    <message>
        <source>spouse</source>
        <translation>cónyuge</translation>
    </message>
    <message>
        <source>partner</source>
        <extracomment>A woman or a man with whom somebody lives.</extracomment>
        <translation>pareja</translation>
    </message>
    <message>
        <source>assistant</source>
        <extracomment>A person at work.</extracomment>
        <translation>asistente</translation>
    </message>
    <message>
        <source>manager</source>
        <extracomment>A person at work.</extracomment>
        <translation>superior</translation>
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
        <translation>cumpleaños</translation>
    </message>
    <message>
        <source>School</source>
        <translation>Escuela</translation>
    </message>
    <message>
        <source>Elder Brother</source>
        <translation>Hermano mayor</translation>
    </message>
    <message>
        <source>Elder Sister</source>
        <translation>Hermana mayor</translation>
    </message>
    <message>
        <source>Younger Brother</source>
        <translation>Hermano menor</translation>
    </message>
    <message>
        <source>Younger Sister</source>
        <translation>Hermana menor</translation>
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
        <translation>Hijo</translation>
    </message>
    <message>
        <source>Daughter</source>
        <translation>Hija</translation>
    </message>
    <message>
        <source>Colleague</source>
        <translation>Colega</translation>
    </message>
    <message>
        <source>Address</source>
        <extracomment>A postal address.</extracomment>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>URL</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>Related Name</source>
        <extracomment>A person who belongs to this one: mother, assistant and so on.</extracomment>
        <translation>Nombre relacionado</translation>
    </message>
    <message>
        <source>Social Profile</source>
        <translation>Perfil social</translation>
    </message>
    <message>
        <source>Instant Message</source>
        <extracomment>Heading over accounts of messengers.</extracomment>
        <translation>Mensajería instantánea</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>Cumpleaños</translation>
    </message>
    <message>
        <source>Notes</source>
        <extracomment>Heading: what was noted on a contact or on a reminder.</extracomment>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Reading List</source>
        <extracomment>Pages to be read later, in the browser.</extracomment>
        <translation>Lista de lectura</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>Pages that were visited, in the browser.</extracomment>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Locked</source>
        <extracomment>Of a note that only its password opens.</extracomment>
        <translation>Bloqueada</translation>
    </message>
    <message>
        <source>You</source>
        <extracomment>Who did something: stands for %1 in the lines below.</extracomment>
        <translation>Tú</translation>
    </message>
    <message>
        <source>you</source>
        <extracomment>Who was added or removed: stands for %2 in two of the lines below.</extracomment>
        <translation>tú</translation>
    </message>
    <message>
        <source>Someone</source>
        <extracomment>Stands for a person without name and number.</extracomment>
        <translation>Persona desconocida</translation>
    </message>
    <message>
        <source>a message</source>
        <extracomment>What a reaction is about.</extracomment>
        <translation>un mensaje</translation>
    </message>
    <message>
        <source>an attachment</source>
        <extracomment>What a reaction is about.</extracomment>
        <translation>un archivo adjunto</translation>
    </message>
    <message>
        <source>%1 edited the message. Before: %2</source>
        <extracomment>%1 may be &quot;You&quot;; %2 is what the message said, in quotation marks.</extracomment>
        <translation>%1: mensaje editado. Antes: %2</translation>
    </message>
    <message>
        <source>%1 placed a sticker on %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: sticker puesto en %2</translation>
    </message>
    <message>
        <source>%1 loved %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;. A heart on a message.</extracomment>
        <translation>%1: reacción de corazón a %2</translation>
    </message>
    <message>
        <source>%1 liked %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: reacción de pulgar hacia arriba a %2</translation>
    </message>
    <message>
        <source>%1 disliked %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: reacción de pulgar hacia abajo a %2</translation>
    </message>
    <message>
        <source>%1 laughed at %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: reacción de risa a %2</translation>
    </message>
    <message>
        <source>%1 emphasized %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;. Exclamation marks on a message.</extracomment>
        <translation>%1: reacción de exclamación a %2</translation>
    </message>
    <message>
        <source>%1 questioned %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;. A question mark on a message.</extracomment>
        <translation>%1: reacción de interrogación a %2</translation>
    </message>
    <message>
        <source>%1 reacted with a sticker to %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: reacción con un sticker a %2</translation>
    </message>
    <message>
        <source>%1 voted on %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;. %2 is a poll.</extracomment>
        <translation>%1: voto en %2</translation>
    </message>
    <message>
        <source>%1 reacted with %2 to %3</source>
        <extracomment>%1 is a name, or &quot;You&quot;. %2 is an emoji.</extracomment>
        <translation>%1: reacción %2 a %3</translation>
    </message>
    <message>
        <source>%1 reacted to %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: reacción a %2</translation>
    </message>
    <message>
        <source>%1 removed %2 from the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;. %2 is a name, or &quot;you&quot;.</extracomment>
        <translation>%1: miembro eliminado de la conversación: %2</translation>
    </message>
    <message>
        <source>%1 changed the phone number</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: número de teléfono cambiado</translation>
    </message>
    <message>
        <source>%1 added %2 to the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;. %2 is a name, or &quot;you&quot;.</extracomment>
        <translation>%1: miembro añadido a la conversación: %2</translation>
    </message>
    <message>
        <source>%1 removed the name of the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: nombre de la conversación eliminado</translation>
    </message>
    <message>
        <source>%1 named the conversation %2</source>
        <extracomment>%1 is a name, or &quot;You&quot;. %2 is the new name, in quotation marks.</extracomment>
        <translation>%1: conversación llamada %2</translation>
    </message>
    <message>
        <source>%1 left the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: conversación abandonada</translation>
    </message>
    <message>
        <source>%1 changed the group photo</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: foto del grupo cambiada</translation>
    </message>
    <message>
        <source>%1 removed the group photo</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: foto del grupo eliminada</translation>
    </message>
    <message>
        <source>%1 changed the background of the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: fondo de la conversación cambiado</translation>
    </message>
    <message>
        <source>%1 removed the background of the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: fondo de la conversación eliminado</translation>
    </message>
    <message>
        <source>%1 changed the conversation</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: conversación cambiada</translation>
    </message>
    <message>
        <source>%1 started sharing the location</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: ubicación compartida</translation>
    </message>
    <message>
        <source>%1 stopped sharing the location</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: ubicación ya no compartida</translation>
    </message>
    <message>
        <source>%1 kept an audio message</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: mensaje de audio conservado</translation>
    </message>
    <message>
        <source>%1 started a call or a shared activity</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: llamada o actividad compartida iniciada</translation>
    </message>
    <message>
        <source>%1 unsent a message</source>
        <extracomment>%1 is a name, or &quot;You&quot;.</extracomment>
        <translation>%1: envío de un mensaje anulado</translation>
    </message>
    <message>
        <source>Handwritten message</source>
        <translation>Mensaje escrito a mano</translation>
    </message>
    <message>
        <source>Digital Touch message</source>
        <extracomment>Digital Touch is a name.</extracomment>
        <translation>Mensaje de Digital Touch</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>Pago</translation>
    </message>
    <message>
        <source>Location</source>
        <extracomment>A message that tells where somebody is.</extracomment>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>Fitness message</source>
        <extracomment>From the app that counts steps and training.</extracomment>
        <translation>Mensaje de Fitness</translation>
    </message>
    <message>
        <source>Shared photos</source>
        <translation>Fotos compartidas</translation>
    </message>
    <message>
        <source>Check In</source>
        <extracomment>An app tells others that somebody has arrived safely.</extracomment>
        <translation>Acompañamiento</translation>
    </message>
    <message>
        <source>Poll</source>
        <translation>Encuesta</translation>
    </message>
    <message>
        <source>App message</source>
        <translation>Mensaje de app</translation>
    </message>
    <message>
        <source>One attachment was never downloaded to the phone.</source>
        <translation>Un archivo adjunto nunca se descargó en el teléfono.</translation>
    </message>
    <message>
        <source>%1 attachments were never downloaded to the phone.</source>
        <extracomment>%1 is 2 or more.</extracomment>
        <translation>%1 archivos adjuntos nunca se descargaron en el teléfono.</translation>
    </message>
    <message>
        <source>%1: the table of conversations is damaged (%2); some messages may be missing.</source>
        <extracomment>%1 is a file, %2 what the database says.</extracomment>
        <translation>%1: la tabla de conversaciones está dañada (%2); pueden faltar algunos mensajes.</translation>
    </message>
    <message>
        <source>%1: some messages cannot be read, the database is damaged (%2).</source>
        <extracomment>%1 is a file, %2 what the database says.</extracomment>
        <translation>%1: algunos mensajes no se pueden leer, la base de datos está dañada (%2).</translation>
    </message>
    <message>
        <source>The backup has no %1.</source>
        <extracomment>%1 is a file.</extracomment>
        <translation>La copia de seguridad no contiene %1.</translation>
    </message>
    <message>
        <source>%1 of the backup is not of a kind that can be read.</source>
        <extracomment>%1 is a file.</extracomment>
        <translation>El archivo %1 de la copia de seguridad no es de un tipo legible.</translation>
    </message>
    <message>
        <source>this is no database of a kind that can be read; it has the tables %1</source>
        <extracomment>Follows the name of the file and a colon; %1 is a list of names.</extracomment>
        <translation>no es una base de datos de un tipo legible; tiene las tablas %1</translation>
    </message>
    <message>
        <source>Number</source>
        <extracomment>Column: a phone number or e-mail address.</extracomment>
        <translation>Número</translation>
    </message>
    <message>
        <source>Duration</source>
        <extracomment>Column: how long a call was.</extracomment>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Service</source>
        <extracomment>Column: what carried a call, such as Phone or FaceTime Audio.</extracomment>
        <translation>Servicio</translation>
    </message>
    <message>
        <source>Incoming</source>
        <extracomment>Type of a call.</extracomment>
        <translation>Entrante</translation>
    </message>
    <message>
        <source>Outgoing</source>
        <extracomment>Type of a call.</extracomment>
        <translation>Saliente</translation>
    </message>
    <message>
        <source>Missed</source>
        <extracomment>Type of a call: nobody answered it.</extracomment>
        <translation>Perdida</translation>
    </message>
    <message>
        <source>Missed voice call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Llamada de voz perdida</translation>
    </message>
    <message>
        <source>Missed video call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Videollamada perdida</translation>
    </message>
    <message>
        <source>Incoming voice call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Llamada de voz entrante</translation>
    </message>
    <message>
        <source>Incoming video call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Videollamada entrante</translation>
    </message>
    <message>
        <source>Outgoing voice call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Llamada de voz saliente</translation>
    </message>
    <message>
        <source>Outgoing video call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Videollamada saliente</translation>
    </message>
    <message>
        <source>[Unknown message]</source>
        <extracomment>A line in a chat: a message of a kind that cannot be shown.</extracomment>
        <translation>[Mensaje desconocido]</translation>
    </message>
    <message>
        <source>[System message]</source>
        <extracomment>A line in a chat that the chat program itself wrote.</extracomment>
        <translation>[Mensaje del sistema]</translation>
    </message>
    <message>
        <source>[Sticker]</source>
        <extracomment>In a chat, for a sticker whose picture is not there.</extracomment>
        <translation>[Sticker]</translation>
    </message>
    <message>
        <source>[Album]</source>
        <extracomment>In a chat, for an album of pictures that is not there itself.</extracomment>
        <translation>[Álbum]</translation>
    </message>
    <message>
        <source>[Album or post]</source>
        <extracomment>In a chat, for what cannot be shown itself.</extracomment>
        <translation>[Álbum o publicación]</translation>
    </message>
    <message>
        <source>[Contact]</source>
        <extracomment>In a chat, for the card of a contact of which nothing is known.</extracomment>
        <translation>[Contacto]</translation>
    </message>
    <message>
        <source>[Call]</source>
        <extracomment>A line in a chat: a call of which nothing is known.</extracomment>
        <translation>[Llamada]</translation>
    </message>
    <message>
        <source>%1 Video</source>
        <extracomment>Service of a call: %1 is the name of an app.</extracomment>
        <translation>Video de %1</translation>
    </message>
    <message>
        <source>A message was recalled</source>
        <extracomment>A line in a chat: its sender took a message back.</extracomment>
        <translation>Se retiró un mensaje</translation>
    </message>
    <message>
        <source>Friend request from %1</source>
        <extracomment>A line in a chat. %1: a name.</extracomment>
        <translation>Solicitud de amistad de %1</translation>
    </message>
    <message>
        <source>Live location</source>
        <extracomment>In a chat, for a place that was shared for a while.</extracomment>
        <translation>Ubicación en tiempo real</translation>
    </message>
    <message>
        <source>Other app</source>
        <extracomment>Service of a call: an app that is not known by name.</extracomment>
        <translation>Otra app</translation>
    </message>
    <message>
        <source>FaceTime Audio</source>
        <extracomment>Service of a call.</extracomment>
        <translation>Audio de FaceTime</translation>
    </message>
    <message>
        <source>FaceTime Video</source>
        <extracomment>Service of a call.</extracomment>
        <translation>Video de FaceTime</translation>
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
        <translation>Vencimiento</translation>
    </message>
    <message>
        <source>Completed</source>
        <extracomment>Column: when a reminder was completed, or Yes.</extracomment>
        <translation>Completado</translation>
    </message>
    <message>
        <source>Priority</source>
        <extracomment>Column: High, Medium or Low.</extracomment>
        <translation>Prioridad</translation>
    </message>
    <message>
        <source>Marks</source>
        <extracomment>Column of a table of reminders: Flagged, Repeats or both.</extracomment>
        <translation>Marcas</translation>
    </message>
    <message>
        <source>Starts</source>
        <extracomment>Column: when an event begins.</extracomment>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Ends</source>
        <extracomment>Column: when an event ends.</extracomment>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Calendar</source>
        <extracomment>Column: the calendar that an event belongs to; also the name of the one that each phone has.</extracomment>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>Every day</source>
        <extracomment>How often an event comes again.</extracomment>
        <translation>Cada día</translation>
    </message>
    <message>
        <source>Every week</source>
        <extracomment>How often an event comes again.</extracomment>
        <translation>Cada semana</translation>
    </message>
    <message>
        <source>Every month</source>
        <extracomment>How often an event comes again.</extracomment>
        <translation>Cada mes</translation>
    </message>
    <message>
        <source>Every year</source>
        <extracomment>How often an event comes again.</extracomment>
        <translation>Cada año</translation>
    </message>
    <message>
        <source>Every %1 days</source>
        <extracomment>%1 is a number from 2 on.</extracomment>
        <translation>Cada %1 días</translation>
    </message>
    <message>
        <source>Every %1 weeks</source>
        <extracomment>%1 is a number from 2 on.</extracomment>
        <translation>Cada %1 semanas</translation>
    </message>
    <message>
        <source>Every %1 months</source>
        <extracomment>%1 is a number from 2 on.</extracomment>
        <translation>Cada %1 meses</translation>
    </message>
    <message>
        <source>Every %1 years</source>
        <extracomment>%1 is a number from 2 on.</extracomment>
        <translation>Cada %1 años</translation>
    </message>
    <message>
        <source>%1 until
%2</source>
        <extracomment>How often and up to which day an event comes again: Every week until 2024-07-16.</extracomment>
        <translation>%1 hasta el
%2</translation>
    </message>
    <message>
        <source>Attendees: %1</source>
        <extracomment>Line of the details of an event: the names of those who take part.</extracomment>
        <translation>Asistentes: %1</translation>
    </message>
    <message>
        <source>Alert: %1</source>
        <extracomment>Line of the details of an event: when the phone rings for it.</extracomment>
        <translation>Alerta: %1</translation>
    </message>
    <message>
        <source>Details</source>
        <extracomment>Column: what else there is to an event, such as attendees and alerts.</extracomment>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Accepted</source>
        <extracomment>Answer to an invitation, beside a name or as a mark of an event.</extracomment>
        <translation>Aceptado</translation>
    </message>
    <message>
        <source>Declined</source>
        <extracomment>Answer to an invitation, beside a name or as a mark of an event.</extracomment>
        <translation>Rechazado</translation>
    </message>
    <message>
        <source>Maybe</source>
        <extracomment>Answer to an invitation, beside a name or as a mark of an event.</extracomment>
        <translation>Quizás</translation>
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
        <translation>Provisional</translation>
    </message>
    <message>
        <source>Invitation</source>
        <extracomment>Mark of an event that the owner of the phone was invited to and has not answered.</extracomment>
        <translation>Invitación</translation>
    </message>
    <message>
        <source>Flagged</source>
        <extracomment>Mark of a reminder: the owner flagged it.</extracomment>
        <translation>Con indicador</translation>
    </message>
    <message>
        <source>Repeats</source>
        <extracomment>Mark of a reminder: it comes again. Also the column that tells how often an event does.</extracomment>
        <translation>Se repite</translation>
    </message>
    <message>
        <source>High</source>
        <extracomment>Priority of a reminder.</extracomment>
        <translation>Alta</translation>
    </message>
    <message>
        <source>Medium</source>
        <extracomment>Priority of a reminder.</extracomment>
        <translation>Media</translation>
    </message>
    <message>
        <source>Low</source>
        <extracomment>Priority of a reminder.</extracomment>
        <translation>Baja</translation>
    </message>
    <message>
        <source>Yes</source>
        <extracomment>In the column Completed: a reminder of which nobody knows when.</extracomment>
        <translation>Sí</translation>
    </message>
    <message>
        <source>Reminders</source>
        <extracomment>Name of the list of reminders that each phone has.</extracomment>
        <translation>Recordatorios</translation>
    </message>
    <message>
        <source>Folder</source>
        <extracomment>Column: the folder of a note.</extracomment>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Created</source>
        <extracomment>Column: when a note was begun.</extracomment>
        <translation>Creada</translation>
    </message>
    <message>
        <source>Modified</source>
        <extracomment>Column: when a note was changed.</extracomment>
        <translation>Modificada</translation>
    </message>
    <message>
        <source>Recently Deleted</source>
        <extracomment>The folder of deleted notes.</extracomment>
        <translation>Eliminado</translation>
    </message>
    <message>
        <source>Attachment</source>
        <extracomment>Stands in a note for an attachment without a name.</extracomment>
        <translation>Archivo adjunto</translation>
    </message>
    <message>
        <source>Drawing</source>
        <extracomment>The name of a drawing in a note that has none of its own; becomes a file name.</extracomment>
        <translation>Dibujo</translation>
    </message>
    <message>
        <source>Scan</source>
        <extracomment>The name of scanned pages in a note that have none of their own; becomes a file name.</extracomment>
        <translation>Escaneado</translation>
    </message>
    <message>
        <source>Web address</source>
        <extracomment>Column: the address of a web page.</extracomment>
        <translation>Dirección web</translation>
    </message>
    <message>
        <source>Label</source>
        <extracomment>Column: what stands before a link, a date or the name of a site.</extracomment>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>The note “%1” names an attachment that its store does not have.</source>
        <extracomment>%1 is the title of a note.</extracomment>
        <translation>La nota «%1» nombra un archivo adjunto que no está en su base de datos.</translation>
    </message>
    <message>
        <source>%1 more notes name attachments that their store does not have.</source>
        <translation>Otras %1 notas nombran archivos adjuntos que no están en su base de datos.</translation>
    </message>
    <message>
        <source>A table in the note “%1” cannot be read: %2</source>
        <extracomment>%1 is the title of a note. %2 is the reason.</extracomment>
        <translation>No se puede leer una tabla de la nota «%1»: %2</translation>
    </message>
    <message>
        <source>%1 more notes have tables that cannot be read.</source>
        <translation>Otras %1 notas tienen tablas que no se pueden leer.</translation>
    </message>
    <message>
        <source>The text of the note “%1” cannot be read: %2</source>
        <extracomment>%1 is the title of a note. %2 is the reason.</extracomment>
        <translation>No se puede leer el texto de la nota «%1»: %2</translation>
    </message>
    <message>
        <source>%1 more notes have texts that cannot be read.</source>
        <translation>Otras %1 notas tienen un texto que no se puede leer.</translation>
    </message>
    <message>
        <source>The backup has no file “%1” of the note “%2”.</source>
        <translation>La copia de seguridad no contiene el archivo «%1» de la nota «%2».</translation>
    </message>
    <message>
        <source>%1 more files of notes are missing in the backup.</source>
        <translation>Faltan otros %1 archivos de notas en la copia de seguridad.</translation>
    </message>
    <message>
        <source>One note was never downloaded to the phone.</source>
        <translation>Una nota nunca se descargó en el teléfono.</translation>
    </message>
    <message>
        <source>%1 notes were never downloaded to the phone.</source>
        <extracomment>%1 is 2 or more.</extracomment>
        <translation>%1 notas nunca se descargaron en el teléfono.</translation>
    </message>
    <message>
        <source>One attachment of a locked note cannot be read.</source>
        <translation>No se puede leer un archivo adjunto de una nota bloqueada.</translation>
    </message>
    <message>
        <source>%1 attachments of locked notes cannot be read.</source>
        <extracomment>%1 is 2 or more.</extracomment>
        <translation>No se pueden leer %1 archivos adjuntos de notas bloqueadas.</translation>
    </message>
    <message>
        <source>%1 has no column %2; it is read as empty.</source>
        <extracomment>%1 is a file, a database.</extracomment>
        <translation>%1 no tiene la columna %2; se lee como vacía.</translation>
    </message>
    <message>
        <source>%1 is damaged; what can be read of it is there.</source>
        <extracomment>%1 is a file, a database.</extracomment>
        <translation>%1 está dañado; lo que se puede leer está incluido.</translation>
    </message>
    <message>
        <source>%1 has no table %2.</source>
        <extracomment>%1 is a file, a database.</extracomment>
        <translation>%1 no tiene la tabla %2.</translation>
    </message>
    <message>
        <source>the store is damaged</source>
        <extracomment>A reason, after a colon.</extracomment>
        <translation>la base de datos está dañada</translation>
    </message>
    <message>
        <source>No Name</source>
        <extracomment>Stands for the name of a contact that has none.</extracomment>
        <translation>Sin nombre</translation>
    </message>
    <message>
        <source>Chinese birthday</source>
        <extracomment>Label of a date.</extracomment>
        <translation>cumpleaños (chino)</translation>
    </message>
    <message>
        <source>Hebrew birthday</source>
        <extracomment>Label of a date.</extracomment>
        <translation>cumpleaños (hebreo)</translation>
    </message>
    <message>
        <source>Islamic birthday</source>
        <extracomment>Label of a date.</extracomment>
        <translation>cumpleaños (islámico)</translation>
    </message>
    <message>
        <source>Month %1, day %2</source>
        <extracomment>A day of the Chinese calendar; the year may follow after a comma.</extracomment>
        <translation>mes %1, día %2</translation>
    </message>
    <message>
        <source>Leap month %1, day %2</source>
        <extracomment>A day of the Chinese calendar, in a month that comes twice in its year.</extracomment>
        <translation>mes intercalar %1, día %2</translation>
    </message>
    <message>
        <source>%1 added %2 to the community</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: se añadió a %2 a la comunidad</translation>
    </message>
    <message>
        <source>%1 was added to the community</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: incorporación a la comunidad</translation>
    </message>
    <message>
        <source>%1 was added to the conversation</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: incorporación a la conversación</translation>
    </message>
    <message>
        <source>%1 was removed from the conversation</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: eliminación de la conversación</translation>
    </message>
    <message>
        <source>%1 created the group</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: creación del grupo</translation>
    </message>
    <message>
        <source>%1 joined by a link</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: entrada mediante un enlace</translation>
    </message>
    <message>
        <source>%1 joined by an invitation</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: entrada por invitación</translation>
    </message>
    <message>
        <source>%1 joined from the community</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: entrada desde la comunidad</translation>
    </message>
    <message>
        <source>%1 made %2 an admin</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: %2 pasa a ser administrador</translation>
    </message>
    <message>
        <source>%1 is now an admin</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: ahora es administrador</translation>
    </message>
    <message>
        <source>You are now an admin</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Ahora eres administrador</translation>
    </message>
    <message>
        <source>You are no longer an admin</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Ya no eres administrador</translation>
    </message>
    <message>
        <source>%1 changed the group description</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: descripción del grupo cambiada</translation>
    </message>
    <message>
        <source>%1 deleted the group description</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: descripción del grupo eliminada</translation>
    </message>
    <message>
        <source>%1 allowed only admins to edit the group</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: solo los administradores pueden editar el grupo</translation>
    </message>
    <message>
        <source>%1 allowed all members to edit the group</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: todos los miembros pueden editar el grupo</translation>
    </message>
    <message>
        <source>%1 allowed only admins to send messages</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: solo los administradores pueden enviar mensajes</translation>
    </message>
    <message>
        <source>%1 allowed all members to send messages</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: todos los miembros pueden enviar mensajes</translation>
    </message>
    <message>
        <source>%1 allowed only admins to add members</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: solo los administradores pueden añadir miembros</translation>
    </message>
    <message>
        <source>%1 changed disappearing messages</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: mensajes temporales cambiados</translation>
    </message>
    <message>
        <source>%1 turned off disappearing messages</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: mensajes temporales desactivados</translation>
    </message>
    <message>
        <source>%1 made messages disappear after %2 hours</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a number, 2 or more.</extracomment>
        <translation>%1: los mensajes desaparecen tras %2 horas</translation>
    </message>
    <message>
        <source>%1 made messages disappear after %2 days</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a number, 2 or more.</extracomment>
        <translation>%1: los mensajes desaparecen tras %2 días</translation>
    </message>
    <message>
        <source>%1 deleted a message</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: mensaje eliminado</translation>
    </message>
    <message>
        <source>A message of %1 has not arrived yet</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: un mensaje aún no ha llegado</translation>
    </message>
    <message>
        <source>The security code of %1 changed</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: código de seguridad cambiado</translation>
    </message>
    <message>
        <source>%1 was blocked</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: contacto bloqueado</translation>
    </message>
    <message>
        <source>%1 was unblocked</source>
        <extracomment>A line in a chat: %1 is a name, or &quot;You&quot;. %2 is a name, or several.</extracomment>
        <translation>%1: contacto desbloqueado</translation>
    </message>
    <message>
        <source>Messages and calls are encrypted from end to end</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Los mensajes y las llamadas están cifrados de extremo a extremo</translation>
    </message>
    <message>
        <source>Notice about a business account</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Aviso sobre una cuenta de empresa</translation>
    </message>
    <message>
        <source>Group call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Llamada grupal</translation>
    </message>
    <message>
        <source>Call</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Llamada</translation>
    </message>
    <message>
        <source>The channel was created</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Se creó el canal</translation>
    </message>
    <message>
        <source>The privacy of the channel changed</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Cambió la privacidad del canal</translation>
    </message>
    <message>
        <source>The channel was changed</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Se modificó el canal</translation>
    </message>
    <message>
        <source>Message of a business</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Mensaje de una empresa</translation>
    </message>
    <message>
        <source>Invitation to a group</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Invitación a un grupo</translation>
    </message>
    <message>
        <source>Product</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Producto</translation>
    </message>
    <message>
        <source>Album</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Álbum</translation>
    </message>
    <message>
        <source>Voice message</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Mensaje de voz</translation>
    </message>
    <message>
        <source>Contact card</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Contacto</translation>
    </message>
    <message>
        <source>Document</source>
        <extracomment>A line in a chat.</extracomment>
        <translation>Documento</translation>
    </message>
    <message>
        <source>Forwarded</source>
        <extracomment>Stands above a message that was written by somebody else.</extracomment>
        <translation>Reenviado</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>Title of the chat with the short-lived posts of all people.</extracomment>
        <translation>Estados</translation>
    </message>
    <message>
        <source>%1: files of messages that are not in the backup: %2</source>
        <extracomment>A remark on a backup: %1 is the name of a database. %2 is a number.</extracomment>
        <translation>%1: archivos de mensajes que no están en la copia de seguridad: %2</translation>
    </message>
    <message>
        <source>Albums</source>
        <extracomment>Column: the albums that a photo is in.</extracomment>
        <translation>Álbumes</translation>
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
        <translation>Panorámica</translation>
    </message>
    <message>
        <source>Live Photo</source>
        <extracomment>Type of a photo: a picture with a short film.</extracomment>
        <translation>Live Photo</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <extracomment>Type of a photo.</extracomment>
        <translation>Captura de pantalla</translation>
    </message>
    <message>
        <source>Slow motion</source>
        <extracomment>Type of a film.</extracomment>
        <translation>Cámara lenta</translation>
    </message>
    <message>
        <source>Time-lapse</source>
        <extracomment>Type of a film.</extracomment>
        <translation>Secuencia</translation>
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
        <translation>Fotos y vídeos de los que la copia de seguridad solo tiene vistas previas pequeñas: %1</translation>
    </message>
    <message>
        <source>Photos and videos of the library that are not in the backup: %1</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>Fotos y vídeos de la fototeca que no están en la copia de seguridad: %1</translation>
    </message>
    <message>
        <source>Recordings that are not in the backup: %1</source>
        <extracomment>%1 is a number; voice memos, or messages on the answering machine.</extracomment>
        <translation>Grabaciones que no están en la copia de seguridad: %1</translation>
    </message>
    <message>
        <source>App</source>
        <extracomment>Column: the app that a file belongs to.</extracomment>
        <translation>App</translation>
    </message>
    <message>
        <source>Place</source>
        <extracomment>Column: the directory of an app&apos;s file; of an event, where it takes place.</extracomment>
        <translation>Ubicación</translation>
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

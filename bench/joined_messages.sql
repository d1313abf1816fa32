-- SPDX-License-Identifier: MIT
-- What the export of messages reads, as the shell of SQLite writes it with -csv: each message with
-- its conversation and its sender, 34 columns, in the order of the table (in the order of
-- conversations the shell takes longer).
SELECT c.ROWID, c.chat_identifier, c.display_name, c.style, h.id, h.service,
       m.ROWID, m.guid, m.text, m.attributedBody, m.subject, m.service, m.date, m.date_read,
       m.date_delivered, m.is_from_me, m.is_sent, m.is_delivered, m.is_read, m.error,
       m.item_type, m.group_action_type, m.group_title, m.share_status, m.other_handle,
       m.associated_message_guid, m.associated_message_type, m.associated_message_emoji,
       m.balloon_bundle_id, m.payload_data, m.date_edited, m.date_retracted,
       m.message_summary_info, m.is_system_message
  FROM message m
       LEFT JOIN chat_message_join j ON j.message_id = m.ROWID
       LEFT JOIN chat c ON c.ROWID = j.chat_id
       LEFT JOIN handle h ON h.ROWID = m.handle_id;

-- The rows that an export of contacts reads.
SELECT * FROM ABPerson;
SELECT v.*, l.value FROM ABMultiValue v LEFT JOIN ABMultiValueLabel l ON l.ROWID = v.label;
SELECT e.*, k.value FROM ABMultiValueEntry e JOIN ABMultiValueEntryKey k ON k.ROWID = e.key;

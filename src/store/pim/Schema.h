// The tables of the store and how a file comes to have them.
//
//   contact          Oid (1 to 2^31 - 1, never used again) and the columns of ContactRows.h
//   contact_journal  what every deleted contact had, with the time (UTC, seconds since 1970) of its
//                    deletion; filled by a trigger, so that no deletion goes round it
//   appointment, appointment_journal
//                    the same for appointments: AppointmentRows.h
//   entry, bucket    the list index: ListIndex.h
//   category         the user's categories, in their order
//
// Texts are UTF-16 in the file too: a text comes back unit by unit as it was written.
#pragma once

namespace quill {

class Database;

// For a connection just opened. Makes the tables in a new file, brings a file of an older version
// up to date (Migration.h), refuses a file of another program or of a newer version untouched, and
// sets how the connection writes: each commit is durable, and readers do not wait for writers. A
// file that can only be read must be one of this version.
// Returns 0 or the failure.
int PrepareSchema(Database& database);

}  // namespace quill

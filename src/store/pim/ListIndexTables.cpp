// The SQL of the list index: its tables and the triggers that keep them.
#include "store/pim/Database.h"
#include "store/pim/ListIndex.h"

namespace quill {

namespace {

constexpr char kRemove[] = R"sql(
DROP TRIGGER IF EXISTS contact_entered;
DROP TRIGGER IF EXISTS contact_left;
DROP TRIGGER IF EXISTS contact_moved;
DROP TRIGGER IF EXISTS appointment_entered;
DROP TRIGGER IF EXISTS appointment_left;
DROP TRIGGER IF EXISTS appointment_moved;
DROP TABLE IF EXISTS entry;
DROP TABLE IF EXISTS bucket;
)sql";

constexpr char kTables[] = R"sql(
CREATE TABLE entry (key BLOB NOT NULL, oid INTEGER NOT NULL, PRIMARY KEY (key, oid)) WITHOUT ROWID;
CREATE TABLE bucket (
  key BLOB NOT NULL, oid INTEGER NOT NULL, n INTEGER NOT NULL, PRIMARY KEY (key, oid)) WITHOUT ROWID;
INSERT INTO bucket VALUES (x'', 0, 0);

CREATE TRIGGER entry_added AFTER INSERT ON entry BEGIN
  UPDATE bucket SET n = n + 1 WHERE (key, oid) = (
    SELECT key, oid FROM bucket WHERE (key, oid) <= (NEW.key, NEW.oid)
    ORDER BY key DESC, oid DESC LIMIT 1);
END;

CREATE TRIGGER entry_removed AFTER DELETE ON entry BEGIN
  UPDATE bucket SET n = n - 1 WHERE (key, oid) = (
    SELECT key, oid FROM bucket WHERE (key, oid) <= (OLD.key, OLD.oid)
    ORDER BY key DESC, oid DESC LIMIT 1);
END;

CREATE TRIGGER bucket_full AFTER UPDATE OF n ON bucket WHEN NEW.n >= 1024 BEGIN
  INSERT INTO bucket
    SELECT key, oid, NEW.n - 512 FROM entry WHERE (key, oid) >= (NEW.key, NEW.oid)
    ORDER BY key, oid LIMIT 1 OFFSET 512;
  UPDATE bucket SET n = 512 WHERE key = NEW.key AND oid = NEW.oid;
END;

CREATE TRIGGER bucket_empty AFTER UPDATE OF n ON bucket WHEN NEW.n = 0 AND NEW.key <> x'' BEGIN
  DELETE FROM bucket WHERE key = NEW.key AND oid = NEW.oid;
END;
)sql";

constexpr char kContactTriggers[] = R"sql(
CREATE TRIGGER contact_entered AFTER INSERT ON contact BEGIN
  INSERT INTO entry
    SELECT entry_key(NEW.FileAs, NEW.CompanyName, NEW.Categories, value), NEW.Oid
    FROM json_each(entry_numbers(NEW.Categories));
END;

CREATE TRIGGER contact_left AFTER DELETE ON contact BEGIN
  DELETE FROM entry WHERE oid = OLD.Oid AND key IN (
    SELECT entry_key(OLD.FileAs, OLD.CompanyName, OLD.Categories, value)
    FROM json_each(entry_numbers(OLD.Categories)));
END;

CREATE TRIGGER contact_moved AFTER UPDATE OF FileAs, CompanyName, Categories ON contact
WHEN OLD.FileAs <> NEW.FileAs OR OLD.CompanyName <> NEW.CompanyName
  OR OLD.Categories <> NEW.Categories BEGIN
  DELETE FROM entry WHERE oid = OLD.Oid AND key IN (
    SELECT entry_key(OLD.FileAs, OLD.CompanyName, OLD.Categories, value)
    FROM json_each(entry_numbers(OLD.Categories)));
  INSERT INTO entry
    SELECT entry_key(NEW.FileAs, NEW.CompanyName, NEW.Categories, value), NEW.Oid
    FROM json_each(entry_numbers(NEW.Categories));
END;
)sql";

constexpr char kAppointmentTriggers[] = R"sql(
CREATE TRIGGER appointment_entered AFTER INSERT ON appointment BEGIN
  INSERT INTO entry VALUES (subject_entry_key(NEW.Subject), NEW.Oid);
END;

CREATE TRIGGER appointment_left AFTER DELETE ON appointment BEGIN
  DELETE FROM entry WHERE key = subject_entry_key(OLD.Subject) AND oid = OLD.Oid;
END;

CREATE TRIGGER appointment_moved AFTER UPDATE OF Subject ON appointment
WHEN OLD.Subject <> NEW.Subject BEGIN
  DELETE FROM entry WHERE key = subject_entry_key(OLD.Subject) AND oid = OLD.Oid;
  INSERT INTO entry VALUES (subject_entry_key(NEW.Subject), NEW.Oid);
END;
)sql";

// In the order of the keys, so that every page of the file is written once.
constexpr char kFill[] = R"sql(
INSERT INTO entry
  SELECT entry_key(FileAs, CompanyName, Categories, value) AS key, Oid
  FROM contact, json_each(entry_numbers(Categories))
  ORDER BY key, Oid;
INSERT INTO entry
  SELECT subject_entry_key(Subject) AS key, Oid FROM appointment ORDER BY key, Oid;
)sql";

}  // namespace

QByteArray ListIndexTables() {
  return QByteArray(kTables) + kContactTriggers + kAppointmentTriggers;
}

int RebuildListIndex(Database& database) {
  return database.Execute(QByteArray(kRemove) + kTables + kFill + kContactTriggers +
                          kAppointmentTriggers);
}

}  // namespace quill

-- The schema of a settings file: settings.VEXSettings, an SQLite 3 database with application id
-- 0x56455853 ("VEXS") and user version 1. Read it with:
--   sqlite3 settings.VEXSettings 'SELECT key, value FROM setting'
-- The comments within the statements are part of every file.

CREATE TABLE repository (
    -- one row
    setting_count INTEGER NOT NULL,
    digest        BLOB NOT NULL     -- XXH3-128 of the user version and all settings; checked on reading
);

CREATE TABLE setting (
    key   TEXT NOT NULL PRIMARY KEY,
    value TEXT NOT NULL
) WITHOUT ROWID;

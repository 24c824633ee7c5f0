-- The schema of a document: .VEXAnalysis, .VEXProduct or .VEXPart, an SQLite 3 database with
-- application id 0x56455844 ("VEXD") and the data version as its user version. Read it with:
--   sqlite3 bracket.VEXAnalysis 'SELECT id, parent, name, alias FROM feature, late_type
--                                WHERE late_type.id = late_type ORDER BY position'
-- The comments within the statements are part of every document.

CREATE TABLE document (
    -- one row: what the file holds; the counts are those of the rows of the tables below
    kind                 TEXT NOT NULL,     -- 'VEXAnalysis', 'VEXProduct' or 'VEXPart'
    late_type_count      INTEGER NOT NULL,
    attribute_name_count INTEGER NOT NULL,
    link_count           INTEGER NOT NULL,
    geometry_count       INTEGER NOT NULL,
    feature_count        INTEGER NOT NULL,
    digest               BLOB NOT NULL      -- XXH3-128 of all content; checked on opening
);

CREATE TABLE late_type (
    id   INTEGER PRIMARY KEY,               -- 0, 1, 2, ...
    name TEXT NOT NULL
);

CREATE TABLE attribute_name (
    id   INTEGER PRIMARY KEY,               -- 0, 1, 2, ...
    name TEXT NOT NULL
);

CREATE TABLE link (
    id   INTEGER PRIMARY KEY,               -- from 1, gaps allowed
    kind TEXT NOT NULL,                     -- of the other document, as document.kind
    path TEXT NOT NULL                      -- relative to the folder of this document
);

CREATE TABLE geometry (
    id     INTEGER PRIMARY KEY,             -- from 1, gaps allowed
    size   INTEGER NOT NULL,                -- of bytes
    digest BLOB NOT NULL,                   -- XXH3-128 of bytes; checked before they are handed out
    bytes  BLOB NOT NULL
);

CREATE TABLE feature (
    position   INTEGER PRIMARY KEY,         -- 1, 2, 3, ...: each feature before its children, depth first
    id         INTEGER NOT NULL,            -- from 1, unique
    parent     INTEGER NOT NULL,            -- id of a feature above; 0: none
    ordinal    INTEGER NOT NULL,            -- 1, 2, 3, ... among the children of its parent
    container  INTEGER NOT NULL,            -- number of the container it belongs to, from 0
    late_type  INTEGER NOT NULL,            -- id in late_type
    alias      TEXT,                        -- NULL: none
    attributes BLOB NOT NULL                -- packed, see PackedAttributes.h
);

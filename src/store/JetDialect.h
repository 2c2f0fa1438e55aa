#pragma once
// The query texts of the old store (Jet dialect) as SQLite runs them, and the
// shape of a SELECT that the Recordset needs: whether it reads one table (so
// its rows can be written back by rowid), where to add the rowid, and the
// text that counts its rows without reading them.

#include <cstddef>
#include <string>
#include <string_view>

namespace qv::jet {

// Rewrites the Jet-only parts of a query text, outside single-quoted literals,
// bracketed or back-quoted names and comments:
// - a double-quoted literal "abc" (with "" for a quote inside) becomes the
//   single-quoted 'abc' (a single quote inside is doubled);
// - a date literal #4/19/2001# or #2001-04-19 10:30:00# becomes the ISO text
//   the store keeps, '2001-04-19T00:00:00.000'.
// TRUE and FALSE, parentheses, ORDER BY and a trailing ";" need nothing.
std::string translate(std::string_view jetText);

struct SelectShape {
    bool isSelect = false;                // the text is a SELECT
    bool singleTable = false;             // one table after FROM, no join, grouping, DISTINCT or compound
    bool aggregate = false;               // an aggregate function in the column list
    size_t fromPos = std::string::npos;   // the top-level FROM
    size_t orderPos = std::string::npos;  // the top-level ORDER BY
    bool hasLimit = false;
    size_t end = 0;  // end of the statement: before a trailing ";" and blanks
};

// The shape of a (translated) SQLite text.
SelectShape analyse(std::string_view sql);

// The name of the added rowid column.
inline constexpr const char* kRowidColumn = "__qv_rowid";
// The hidden identity column of every table of a server store.
inline constexpr const char* kIdentityColumn = "qv_rowid";

// The SELECT with the base table's rowid (or the named identity column)
// added as its last column, or an empty text when the shape has no single
// base table.
std::string withRowid(std::string_view sql, const SelectShape& shape, std::string_view identity = "rowid");
// The same with any columns added at the end of the column list.
std::string withColumns(std::string_view sql, const SelectShape& shape, std::string_view columns);

// A translated text as PostgreSQL reads it: TRUE and FALSE outside literals
// become 1 and 0, since yes/no columns hold 0/1 there as on the file store;
// the placeholders ? become $1, $2, ... in their order.
std::string forPostgres(std::string_view sql);

// "SELECT COUNT(*) FROM (<query>)", without a trailing ORDER BY that can't
// change the count.
std::string countQuery(std::string_view sql, const SelectShape& shape);

// An identifier between double quotes, inner quotes doubled.
std::string quoteIdentifier(std::string_view name);

}  // namespace qv::jet

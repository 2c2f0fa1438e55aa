#include "store/JetDialect.h"

#include <vector>

#include "toolkit/Failure.h"
#include "values/types/DateSerial.h"
#include "values/types/Value.h"

namespace qv::jet {

namespace {

bool isWordChar(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           c == '$' || static_cast<unsigned char>(c) >= 0x80;
}

char upper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

bool equalsUpper(std::string_view word, std::string_view upperWord) {
    if (word.size() != upperWord.size()) return false;
    for (size_t i = 0; i < word.size(); ++i)
        if (upper(word[i]) != upperWord[i]) return false;
    return true;
}

// Copies a quoted run starting at s[i] (the opening quote) up to and with its
// closing quote; a doubled closing quote stays inside. Returns the index after.
size_t skipQuoted(std::string_view s, size_t i, char close) {
    ++i;
    while (i < s.size()) {
        if (s[i] == close) {
            if (close != ']' && i + 1 < s.size() && s[i + 1] == close) {
                i += 2;
                continue;
            }
            return i + 1;
        }
        ++i;
    }
    return s.size();
}

size_t skipComment(std::string_view s, size_t i) {
    if (s[i] == '-') {
        const size_t nl = s.find('\n', i);
        return nl == std::string_view::npos ? s.size() : nl + 1;
    }
    const size_t end = s.find("*/", i + 2);
    return end == std::string_view::npos ? s.size() : end + 2;
}

bool startsComment(std::string_view s, size_t i) {
    return i + 1 < s.size() && ((s[i] == '-' && s[i + 1] == '-') || (s[i] == '/' && s[i + 1] == '*'));
}

// A Jet date literal's content as the store's ISO text, if it reads as a date.
bool jetDate(std::string_view content, std::string& iso) {
    if (content.empty() || content.size() > 40) return false;
    try {
        const Date d = Value(std::string(content)).toDate();
        iso = dateserial::toIso(d.serial);
        return true;
    } catch (const Failure&) {
        return false;
    }
}

struct Token {
    enum Kind { Word, Punct } kind;
    size_t pos;
    size_t len;
    int depth;  // parenthesis depth where it stands ('(' counts as outside)
};

std::vector<Token> tokenize(std::string_view s) {
    std::vector<Token> tokens;
    int depth = 0;
    size_t i = 0;
    while (i < s.size()) {
        const char c = s[i];
        if (c == '\'' || c == '"' || c == '`') {
            i = skipQuoted(s, i, c);
            tokens.push_back({Token::Word, i, 0, depth});  // a literal or name: a word-like token
        } else if (c == '[') {
            i = skipQuoted(s, i, ']');
            tokens.push_back({Token::Word, i, 0, depth});
        } else if (startsComment(s, i)) {
            i = skipComment(s, i);
        } else if (isWordChar(c)) {
            const size_t start = i;
            while (i < s.size() && isWordChar(s[i])) ++i;
            tokens.push_back({Token::Word, start, i - start, depth});
        } else if (c == '(') {
            tokens.push_back({Token::Punct, i, 1, depth});
            ++depth;
            ++i;
        } else if (c == ')') {
            if (depth > 0) --depth;
            tokens.push_back({Token::Punct, i, 1, depth});
            ++i;
        } else if (c == ' ' || c == '\t' || c == '\r' || c == '\n') {
            ++i;
        } else {
            tokens.push_back({Token::Punct, i, 1, depth});
            ++i;
        }
    }
    return tokens;
}

}  // namespace

std::string translate(std::string_view s) {
    std::string out;
    out.reserve(s.size() + 16);
    size_t i = 0;
    while (i < s.size()) {
        const char c = s[i];
        if (c == '\'' || c == '`' || c == '[') {
            const size_t end = skipQuoted(s, i, c == '[' ? ']' : c);
            out.append(s.substr(i, end - i));
            i = end;
        } else if (c == '"') {
            // A Jet text literal: "" inside is one quote; a ' inside doubles.
            out.push_back('\'');
            ++i;
            while (i < s.size()) {
                if (s[i] == '"') {
                    if (i + 1 < s.size() && s[i + 1] == '"') {
                        out.push_back('"');
                        i += 2;
                        continue;
                    }
                    ++i;
                    break;
                }
                if (s[i] == '\'') out.push_back('\'');
                out.push_back(s[i]);
                ++i;
            }
            out.push_back('\'');
        } else if (startsComment(s, i)) {
            const size_t end = skipComment(s, i);
            out.append(s.substr(i, end - i));
            i = end;
        } else if (c == '#') {
            const size_t close = s.find('#', i + 1);
            std::string iso;
            if (close != std::string_view::npos && jetDate(s.substr(i + 1, close - i - 1), iso)) {
                out.push_back('\'');
                out += iso;
                out.push_back('\'');
                i = close + 1;
            } else {
                out.push_back(c);
                ++i;
            }
        } else {
            out.push_back(c);
            ++i;
        }
    }
    return out;
}

SelectShape analyse(std::string_view sql) {
    SelectShape shape;
    const std::vector<Token> tokens = tokenize(sql);

    // The statement ends at the first top-level ";".
    size_t count = tokens.size();
    shape.end = sql.size();
    for (size_t t = 0; t < tokens.size(); ++t) {
        if (tokens[t].kind == Token::Punct && tokens[t].depth == 0 && sql[tokens[t].pos] == ';') {
            shape.end = tokens[t].pos;
            count = t;
            break;
        }
    }
    while (shape.end > 0 && (sql[shape.end - 1] == ' ' || sql[shape.end - 1] == '\t' ||
                             sql[shape.end - 1] == '\r' || sql[shape.end - 1] == '\n'))
        --shape.end;

    auto word = [&](size_t t) {
        return tokens[t].kind == Token::Word ? sql.substr(tokens[t].pos, tokens[t].len) : std::string_view{};
    };
    auto punct = [&](size_t t, char c) {
        return t < count && tokens[t].kind == Token::Punct && sql[tokens[t].pos] == c;
    };

    if (count == 0 || !equalsUpper(word(0), "SELECT")) return shape;
    shape.isSelect = true;

    bool blocked = false;  // something that rules out one updatable base table
    size_t fromTok = 0;
    for (size_t t = 1; t < count; ++t) {
        if (tokens[t].depth != 0 || tokens[t].kind != Token::Word) continue;
        const std::string_view w = word(t);
        if (equalsUpper(w, "FROM") && shape.fromPos == std::string::npos) {
            shape.fromPos = tokens[t].pos;
            fromTok = t;
        } else if (equalsUpper(w, "ORDER") && t + 1 < count && equalsUpper(word(t + 1), "BY")) {
            shape.orderPos = tokens[t].pos;
        } else if (equalsUpper(w, "LIMIT")) {
            shape.hasLimit = true;
        } else if (equalsUpper(w, "DISTINCT") || equalsUpper(w, "GROUP") || equalsUpper(w, "HAVING") ||
                   equalsUpper(w, "UNION") || equalsUpper(w, "INTERSECT") || equalsUpper(w, "EXCEPT") ||
                   equalsUpper(w, "JOIN") || equalsUpper(w, "WINDOW") || equalsUpper(w, "VALUES")) {
            blocked = true;
        } else if (shape.fromPos == std::string::npos &&
                   (equalsUpper(w, "COUNT") || equalsUpper(w, "SUM") || equalsUpper(w, "AVG") ||
                    equalsUpper(w, "MIN") || equalsUpper(w, "MAX") || equalsUpper(w, "TOTAL") ||
                    equalsUpper(w, "GROUP_CONCAT")) &&
                   punct(t + 1, '(')) {
            shape.aggregate = true;
        }
    }
    if (shape.fromPos == std::string::npos) return shape;

    // The FROM part: one name, maybe an alias, up to WHERE / ORDER / LIMIT.
    size_t names = 0;
    for (size_t t = fromTok + 1; t < count; ++t) {
        if (tokens[t].depth != 0) continue;
        if (tokens[t].kind == Token::Punct) {
            if (sql[tokens[t].pos] == '.') continue;  // schema.table
            blocked = true;                           // a comma join, a sub-query or a table function
            break;
        }
        const std::string_view w = word(t);
        if (equalsUpper(w, "WHERE") || equalsUpper(w, "ORDER") || equalsUpper(w, "LIMIT")) break;
        if (equalsUpper(w, "AS") || equalsUpper(w, "INDEXED") || equalsUpper(w, "NOT") ||
            equalsUpper(w, "BY"))
            continue;
        ++names;
    }
    shape.singleTable = !blocked && names >= 1 && names <= 4;
    return shape;
}

std::string withRowid(std::string_view sql, const SelectShape& shape, std::string_view identity) {
    return withColumns(sql, shape, std::string(identity) + " AS " + kRowidColumn);
}

std::string withColumns(std::string_view sql, const SelectShape& shape, std::string_view columns) {
    if (!shape.isSelect || !shape.singleTable || shape.aggregate || shape.fromPos == std::string::npos)
        return {};
    std::string out;
    out.reserve(shape.end + 32);
    out.append(sql.substr(0, shape.fromPos));
    while (!out.empty() &&
           (out.back() == ' ' || out.back() == '\n' || out.back() == '\t' || out.back() == '\r'))
        out.pop_back();
    out += ", ";
    out += columns;
    out.push_back(' ');
    out.append(sql.substr(shape.fromPos, shape.end - shape.fromPos));
    return out;
}

std::string countQuery(std::string_view sql, const SelectShape& shape) {
    size_t end = shape.end;
    if (shape.orderPos != std::string::npos && !shape.hasLimit && shape.orderPos < end) end = shape.orderPos;
    std::string out = "SELECT COUNT(*) FROM (";
    out.append(sql.substr(0, end));
    out += ") AS qv_counted";
    return out;
}

std::string forPostgres(std::string_view s) {
    std::string out;
    out.reserve(s.size());
    size_t i = 0;
    int marks = 0;
    while (i < s.size()) {
        const char c = s[i];
        if (c == '\'' || c == '"' || c == '`' || c == '[') {
            const size_t end = skipQuoted(s, i, c == '[' ? ']' : c);
            out.append(s.substr(i, end - i));
            i = end;
        } else if (startsComment(s, i)) {
            const size_t end = skipComment(s, i);
            out.append(s.substr(i, end - i));
            i = end;
        } else if (isWordChar(c)) {
            size_t end = i;
            while (end < s.size() && isWordChar(s[end])) ++end;
            const std::string_view w = s.substr(i, end - i);
            if (equalsUpper(w, "TRUE"))
                out += "1";
            else if (equalsUpper(w, "FALSE"))
                out += "0";
            else
                out.append(w);
            i = end;
        } else if (c == '?') {
            out += "$" + std::to_string(++marks);
            ++i;
        } else {
            out.push_back(c);
            ++i;
        }
    }
    return out;
}

std::string quoteIdentifier(std::string_view name) {
    std::string out;
    out.reserve(name.size() + 2);
    out.push_back('"');
    for (char c : name) {
        if (c == '"') out.push_back('"');
        out.push_back(c);
    }
    out.push_back('"');
    return out;
}

}  // namespace qv::jet

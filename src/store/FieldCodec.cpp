#include "store/FieldCodec.h"

#include <limits>
#include <string>

#include "toolkit/Failure.h"
#include "values/types/DateSerial.h"

namespace qv {

namespace {
char upper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}
}  // namespace


FieldType FieldCodec::typeFromDecl(const char* decl) {
    if (!decl || !*decl) return FieldType::Expr;
    std::string u(decl);
    for (char& c : u) c = upper(c);
    auto has = [&](const char* w) { return u.find(w) != std::string::npos; };
    if (has("BOOL") || has("YESNO") || has("BIT")) return FieldType::Bool;
    if (has("DATE") || has("TIME")) return FieldType::Date;
    if (has("CHAR") || has("TEXT") || has("MEMO") || has("CLOB") || has("STRING")) return FieldType::Text;
    if (has("SMALLINT") || has("SHORT") || has("TINYINT")) return FieldType::Int16;
    if (has("INT") || has("LONG") || has("COUNTER")) return FieldType::Int32;
    if (has("REAL") || has("DOUB") || has("FLOA") || has("NUMERIC") || has("DECIMAL") || has("CURRENCY") ||
        has("MONEY") || has("SINGLE"))
        return FieldType::Double;
    return FieldType::Expr;
}

bool FieldCodec::equalsNoCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (size_t i = 0; i < a.size(); ++i)
        if (upper(a[i]) != upper(b[i])) return false;
    return true;
}

bool FieldCodec::fitsInt32(int64_t i) {
    return i >= std::numeric_limits<int32_t>::min() && i <= std::numeric_limits<int32_t>::max();
}
bool FieldCodec::fitsInt16(int64_t i) {
    return i >= std::numeric_limits<int16_t>::min() && i <= std::numeric_limits<int16_t>::max();
}

Value FieldCodec::convertFor(FieldType type, const Value& v) {
    if (v.isNull()) return {};
    switch (type) {
        case FieldType::Bool:
            return Value(v.toBool());
        case FieldType::Int16:
            return Value(v.toInt16());
        case FieldType::Int32:
            return Value(v.toInt32());
        case FieldType::Double:
            return Value(v.toDouble());
        case FieldType::Date:
            return Value(Date{dateserial::roundToMillisecond(v.toDate().serial)});
        case FieldType::Text:
            return Value(v.toText());
        case FieldType::Expr:
            break;
    }
    return v;
}

bool FieldCodec::sameStored(const Value& a, const Value& b) {
    const auto numeric = [](Value::Kind k) {
        return k == Value::Kind::Bool || k == Value::Kind::Int16 || k == Value::Kind::Int32 ||
               k == Value::Kind::Double;
    };
    if (a.kind() == Value::Kind::Date && b.kind() == Value::Kind::Date)
        return dateserial::toIso(a.toDate().serial) == dateserial::toIso(b.toDate().serial);
    if (a.kind() != b.kind() && numeric(a.kind()) && numeric(b.kind())) return a.toDouble() == b.toDouble();
    return a == b;
}

namespace {

Value integerFor(int64_t i, FieldType type) {
    switch (type) {
        case FieldType::Bool:
            return Value(i != 0);
        case FieldType::Int16:
            if (FieldCodec::fitsInt16(i)) return Value(static_cast<int16_t>(i));
            [[fallthrough]];
        case FieldType::Int32:
        case FieldType::Expr:
            if (FieldCodec::fitsInt32(i)) return Value(static_cast<int32_t>(i));
            return Value(static_cast<double>(i));
        case FieldType::Double:
            return Value(static_cast<double>(i));
        case FieldType::Date:
            return Value(Date{static_cast<double>(i)});
        case FieldType::Text:
            return Value(std::to_string(i));
    }
    return {};
}

Value floatFor(double d, FieldType type) {
    switch (type) {
        case FieldType::Bool:
            return Value(d != 0.0);
        case FieldType::Date:
            return Value(Date{d});
        case FieldType::Text:
            return Value(Value(d).toText());
        default:
            return Value(d);
    }
}

// A text that doesn't read as the column's date or yes/no stays text.
Value textFor(std::string_view text, FieldType type) {
    if (type == FieldType::Date) {
        if (auto serial = dateserial::fromIso(text)) return Value(Date{*serial});
        try {
            return Value(Value(std::string(text)).toDate());
        } catch (const Failure&) {
        }
    } else if (type == FieldType::Bool) {
        try {
            return Value(Value(std::string(text)).toBool());
        } catch (const Failure&) {
        }
    }
    return Value(std::string(text));
}

}  // namespace

Value FieldCodec::fromCell(const Cell& cell, FieldType type) {
    switch (cell.kind) {
        case kCellInteger:
            return integerFor(cell.i, type);
        case kCellFloat:
            return floatFor(cell.d, type);
        case kCellText:
        case kCellBlob:
            return textFor(std::string_view(cell.text, cell.len), type);
        default:
            return {};
    }
}

Value FieldCodec::rawFromCell(const Cell& cell) {
    switch (cell.kind) {
        case kCellInteger:
            if (fitsInt32(cell.i)) return Value(static_cast<int32_t>(cell.i));
            return Value(static_cast<double>(cell.i));
        case kCellFloat:
            return Value(cell.d);
        case kCellText:
        case kCellBlob:
            return Value(std::string(cell.text, cell.len));
        default:
            return {};
    }
}

void FieldCodec::bindValue(sqlite3_stmt* stmt, int index, const Value& v) {
    switch (v.kind()) {
        case Value::Kind::Null:
            sqlite3_bind_null(stmt, index);
            break;
        case Value::Kind::Bool:
            sqlite3_bind_int(stmt, index, v.toBool() ? 1 : 0);
            break;
        case Value::Kind::Int16:
        case Value::Kind::Int32:
            sqlite3_bind_int(stmt, index, v.toInt32());
            break;
        case Value::Kind::Double:
            sqlite3_bind_double(stmt, index, v.toDouble());
            break;
        case Value::Kind::Date: {
            const std::string iso = dateserial::toIso(v.toDate().serial);
            sqlite3_bind_text(stmt, index, iso.data(), static_cast<int>(iso.size()), SQLITE_TRANSIENT);
            break;
        }
        case Value::Kind::Text: {
            const std::string s = v.toText();
            sqlite3_bind_text(stmt, index, s.data(), static_cast<int>(s.size()), SQLITE_TRANSIENT);
            break;
        }
    }
}

}  // namespace qv

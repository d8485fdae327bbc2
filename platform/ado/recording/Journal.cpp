#include "platform/ado/recording/Journal.h"

#include <array>

using namespace Qt::StringLiterals;

namespace ado::recording {
namespace {

struct TypeName {
    DataTypeEnum type;
    const char16_t* name;
};

constexpr std::array kTypeNames{
    TypeName{DataTypeEnum::adSmallInt, u"adSmallInt"},
    TypeName{DataTypeEnum::adInteger, u"adInteger"},
    TypeName{DataTypeEnum::adSingle, u"adSingle"},
    TypeName{DataTypeEnum::adDouble, u"adDouble"},
    TypeName{DataTypeEnum::adCurrency, u"adCurrency"},
    TypeName{DataTypeEnum::adDate, u"adDate"},
    TypeName{DataTypeEnum::adBoolean, u"adBoolean"},
    TypeName{DataTypeEnum::adDecimal, u"adDecimal"},
    TypeName{DataTypeEnum::adTinyInt, u"adTinyInt"},
    TypeName{DataTypeEnum::adUnsignedTinyInt, u"adUnsignedTinyInt"},
    TypeName{DataTypeEnum::adBigInt, u"adBigInt"},
    TypeName{DataTypeEnum::adGUID, u"adGUID"},
    TypeName{DataTypeEnum::adBinary, u"adBinary"},
    TypeName{DataTypeEnum::adChar, u"adChar"},
    TypeName{DataTypeEnum::adWChar, u"adWChar"},
    TypeName{DataTypeEnum::adNumeric, u"adNumeric"},
    TypeName{DataTypeEnum::adDBDate, u"adDBDate"},
    TypeName{DataTypeEnum::adDBTimeStamp, u"adDBTimeStamp"},
    TypeName{DataTypeEnum::adVarChar, u"adVarChar"},
    TypeName{DataTypeEnum::adLongVarChar, u"adLongVarChar"},
    TypeName{DataTypeEnum::adVarWChar, u"adVarWChar"},
    TypeName{DataTypeEnum::adLongVarWChar, u"adLongVarWChar"},
    TypeName{DataTypeEnum::adVarBinary, u"adVarBinary"},
    TypeName{DataTypeEnum::adLongVarBinary, u"adLongVarBinary"},
};

QString typeName(DataTypeEnum type) {
    for (const auto& entry : kTypeNames) {
        if (entry.type == type) {
            return QString::fromUtf16(entry.name);
        }
    }
    return QString::number(static_cast<int>(type));
}

QString parameterText(const ParameterValue& p) {
    return u"%1 %2(%3) size %4 = %5"_s.arg(p.name, typeName(p.type),
                                          QString::number(static_cast<int>(p.type)),
                                          QString::number(p.size), Journal::describe(p.value));
}

} // namespace

QString Journal::describe(const vb::Variant& value) {
    if (value.isNull()) {
        return u"Null"_s;
    }
    if (value.isEmpty() || value.isMissing()) {
        return u"Empty"_s;
    }
    if (const QString* s = value.get<QString>()) {
        return u'\'' + *s + u'\'';
    }
    if (const QDateTime* d = value.get<QDateTime>()) {
        return u'#' + d->toString(Qt::ISODateWithMs) + u'#';
    }
    if (const bool* b = value.get<bool>()) {
        return *b ? u"True"_s : u"False"_s;
    }
    if (const QByteArray* bytes = value.get<QByteArray>()) {
        return u"0x"_s + QString::fromLatin1(bytes->toHex());
    }
    if (const vb::Currency* c = value.get<vb::Currency>()) {
        return QString::number(static_cast<double>(c->tenThousandths) / 10000.0, 'f', 4);
    }
    if (const vb::Decimal* d = value.get<vb::Decimal>()) {
        return d->toString();
    }
    if (const auto number = value.toDouble()) {
        return QString::number(*number, 'g', 17);
    }
    return value.toString();
}

QStringList Journal::lines() const {
    QStringList result;
    for (const auto& e : m_entries) {
        switch (e.kind) {
        case Kind::Open:
            result << u"open: "_s + e.text;
            break;
        case Kind::Close:
            result << u"close"_s;
            break;
        case Kind::Execute: {
            QString line = u"execute: "_s + e.text;
            if (!e.parameters.empty()) {
                QStringList params;
                for (const auto& p : e.parameters) {
                    params << parameterText(p);
                }
                line += u" ["_s + params.join(u", "_s) + u']';
            }
            result << line;
            break;
        }
        case Kind::Schema: {
            QStringList parts;
            for (const auto& r : e.restrictions) {
                parts << (r.isEmpty() || r.isMissing() ? u"-"_s : r.toString());
            }
            result << u"schema "_s + QString::number(e.schema) + u": "_s + parts.join(u'|');
            break;
        }
        case Kind::BeginTrans:
            result << u"begin"_s;
            break;
        case Kind::CommitTrans:
            result << u"commit"_s;
            break;
        case Kind::RollbackTrans:
            result << u"rollback"_s;
            break;
        case Kind::SetProperty:
            result << u"property: "_s + e.text;
            break;
        case Kind::RowChange:
            result << u"row: "_s + e.text;
            break;
        case Kind::Catalog:
            result << u"catalog: "_s + e.text;
            break;
        case Kind::CreateDatabase:
            result << u"create database: "_s + e.text;
            break;
        }
    }
    return result;
}

QStringList Journal::statements() const {
    QStringList result;
    for (const auto& e : m_entries) {
        if (e.kind == Kind::Execute) {
            result << e.text;
        }
    }
    return result;
}

} // namespace ado::recording

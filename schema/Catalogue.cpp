#include "schema/Catalogue.h"

#include <QFile>
#include <QSet>

#include <numeric>
#include <utility>

using namespace Qt::StringLiterals;

namespace schema {

namespace {

constexpr int kAdVarWChar = 202;
constexpr int kMaxTextSize = 255; // a Jet text column holds at most 255 characters

constexpr long kIdxPrimary = 1;
constexpr long kIdxKnownFlags = 7; // 1 primary, 2 declared and not read, 4 unique

constexpr long kAdRICascade = 1;

// The fixed-size codes and their ADO types; V<n> and DATE are read apart.
constexpr std::pair<QStringView, int> kTypeCodes[] = {
    {u"I2", 2}, {u"I4", 3}, {u"F8", 5}, {u"CUR", 6}, {u"BOOL", 11}, {u"GUID", 72}, {u"MEMO", 203},
};

bool readType(QStringView code, FieldDef& field) {
    if (code == u"DATE") {
        field.dateType = true;
        return true;
    }
    for (const auto& [known, type] : kTypeCodes) {
        if (code == known) {
            field.type = type;
            return true;
        }
    }
    if (!code.startsWith(u'V')) {
        return false;
    }
    bool ok = false;
    const int size = code.mid(1).toInt(&ok);
    // The size is written plainly, as "V16": no sign, no leading zero.
    if (!ok || size < 1 || size > kMaxTextSize || code.mid(1) != QString::number(size)) {
        return false;
    }
    field.type = kAdVarWChar;
    field.size = size;
    return true;
}

// FldAdd attributes: 1 required, 2 auto-increment, 4 optional, 32 zero length allowed.
constexpr std::pair<QStringView, long> kMarks[] = {{u"A", 2}, {u"R", 1}, {u"Rz", 33}, {u"O", 4}};

// With no mark a text allows zero length and anything else is optional.
bool readMark(QStringView mark, FieldDef& field) {
    if (mark.isEmpty()) {
        field.attributes = field.type == kAdVarWChar ? 32 : 4;
        return true;
    }
    for (const auto& [known, attributes] : kMarks) {
        if (mark == known) {
            field.attributes = attributes;
            return true;
        }
    }
    return false;
}

bool hasFieldExactly(const TableDef& table, QStringView name) {
    const FieldDef* field = table.field(name);
    return field != nullptr && field->name == name;
}

} // namespace

// Reads the text line by line into a Catalogue; the first fault ends the reading.
class CatalogueReader {
public:
    CatalogueReader(Catalogue& target, const QString& fileName)
        : m_target(target), m_fileName(fileName) {}

    bool read(QStringView text);
    const QString& error() const { return m_error; }

private:
    bool readLine(const QList<QStringView>& cols);
    bool readTable(const QList<QStringView>& cols);
    bool readField(const QList<QStringView>& cols);
    bool readIndex(const QList<QStringView>& cols);
    bool readIndexFields(const TableDef& table, const IndexDef& index);
    bool readRelation(const QList<QStringView>& cols);
    bool readRelationSide(const RelationDef& relation, QStringView tableName,
                          const QStringList& fields);
    bool endTable();
    TableDef* openTable();

    bool fail(const QString& reason) { return failAt(m_line, reason); }
    bool failAt(int line, const QString& reason) {
        m_error = u"%1:%2: %3"_s.arg(m_fileName, QString::number(line), reason);
        return false;
    }

    Catalogue& m_target;
    QString m_fileName;
    QString m_error;
    int m_line = 0;
    bool m_inRelations = false;
    QHash<QString, int> m_tableLines; // lower-cased name -> line of its block
    QSet<QString> m_relationNames;    // lower-cased
};

bool CatalogueReader::read(QStringView text) {
    const QList<QStringView> lines = text.split(u'\n');
    for (QStringView line : lines) {
        ++m_line;
        if (line.endsWith(u'\r')) {
            line.chop(1);
        }
        const QStringView trimmed = line.trimmed();
        if (trimmed.isEmpty() || trimmed.startsWith(u'#')) {
            continue;
        }
        if (!readLine(line.split(u'\t'))) {
            return false;
        }
    }
    if (!m_inRelations && !endTable()) {
        return false;
    }
    if (m_target.m_tables.isEmpty()) {
        m_error = u"%1: no tables"_s.arg(m_fileName);
        return false;
    }
    return true;
}

bool CatalogueReader::readLine(const QList<QStringView>& cols) {
    for (qsizetype i = 0; i < cols.size(); ++i) {
        if (cols[i].isEmpty()) {
            return fail(u"column %1 is empty"_s.arg(i + 1));
        }
        if (cols[i].trimmed() != cols[i]) {
            return fail(u"blanks around '%1'"_s.arg(cols[i].trimmed()));
        }
    }
    using Read = bool (CatalogueReader::*)(const QList<QStringView>&);
    const std::pair<QStringView, Read> kinds[] = {{u"table", &CatalogueReader::readTable},
                                                  {u"field", &CatalogueReader::readField},
                                                  {u"index", &CatalogueReader::readIndex},
                                                  {u"relation", &CatalogueReader::readRelation}};
    for (const auto& [kind, read] : kinds) {
        if (cols[0] == kind) {
            return (this->*read)(cols);
        }
    }
    return fail(u"unknown kind of line '%1'"_s.arg(cols[0]));
}

bool CatalogueReader::readTable(const QList<QStringView>& cols) {
    if (cols.size() != 2) {
        return fail(u"a table line holds the table's name and nothing else"_s);
    }
    if (m_inRelations) {
        return fail(u"table '%1' after the relations"_s.arg(cols[1]));
    }
    if (!endTable()) {
        return false;
    }
    const QString name = cols[1].toString();
    const QString key = name.toLower();
    if (m_tableLines.contains(key)) {
        return fail(u"table '%1' is defined twice, first at line %2"_s.arg(
            name, QString::number(m_tableLines.value(key))));
    }
    m_tableLines.insert(key, m_line);
    m_target.m_byName.insert(key, m_target.m_tables.size());
    m_target.m_tables.append(TableDef{name, {}, {}});
    return true;
}

// The table whose block is open, or null after a fault naming the line.
TableDef* CatalogueReader::openTable() {
    if (m_target.m_tables.isEmpty() || m_inRelations) {
        fail(u"a field or index line outside a table block"_s);
        return nullptr;
    }
    return &m_target.m_tables.last();
}

// Closes the block of the last table, when there is one.
bool CatalogueReader::endTable() {
    if (m_target.m_tables.isEmpty()) {
        return true;
    }
    const TableDef& table = m_target.m_tables.last();
    if (table.fields.isEmpty()) {
        return failAt(m_tableLines.value(table.name.toLower()),
                      u"table '%1' has no fields"_s.arg(table.name));
    }
    return true;
}

bool CatalogueReader::readField(const QList<QStringView>& cols) {
    TableDef* table = openTable();
    if (table == nullptr) {
        return false;
    }
    if (cols.size() < 3) {
        return fail(u"a field line holds a name and a type, then a mark and a default if any"_s);
    }
    FieldDef field;
    field.name = cols[1].toString();
    if (table->field(field.name) != nullptr) {
        return fail(u"field '%1' is defined twice in table '%2'"_s.arg(field.name, table->name));
    }
    if (!readType(cols[2], field)) {
        return fail(u"unknown type '%1'"_s.arg(cols[2]));
    }
    qsizetype next = 3;
    const bool marked = next < cols.size() && !cols[next].startsWith(u'=');
    if (!readMark(marked ? cols[next] : QStringView(), field)) {
        return fail(u"unknown mark '%1'"_s.arg(cols[next]));
    }
    next += marked ? 1 : 0;
    if (next < cols.size() && cols[next].startsWith(u'=')) {
        if (cols[next].size() == 1) {
            return fail(u"nothing after '=': a field with no default has no default column"_s);
        }
        field.hasDefault = true;
        field.defaultValue = cols[next].mid(1).toString();
        ++next;
    }
    if (next < cols.size()) {
        return fail(u"unexpected column '%1'"_s.arg(cols[next]));
    }
    table->fields.append(field);
    return true;
}

bool CatalogueReader::readIndex(const QList<QStringView>& cols) {
    TableDef* table = openTable();
    if (table == nullptr) {
        return false;
    }
    if (cols.size() != 4) {
        return fail(u"an index line holds a name, its fields and its flags"_s);
    }
    IndexDef index{cols[1].toString(), cols[2].toString(), 0};
    bool ok = false;
    index.flags = cols[3].toLong(&ok);
    if (!ok || index.flags < 0 || (index.flags & ~kIdxKnownFlags) != 0) {
        return fail(u"index flags '%1' are not a sum of 1, 2 and 4"_s.arg(cols[3]));
    }
    for (const IndexDef& earlier : std::as_const(table->indexes)) {
        if (earlier.name.compare(index.name, Qt::CaseInsensitive) == 0) {
            return fail(
                u"index '%1' is defined twice in table '%2'"_s.arg(index.name, table->name));
        }
        if ((earlier.flags & kIdxPrimary) != 0 && (index.flags & kIdxPrimary) != 0) {
            return fail(u"table '%1' has a second primary key '%2'"_s.arg(table->name, index.name));
        }
    }
    if (!readIndexFields(*table, index)) {
        return false;
    }
    table->indexes.append(index);
    return true;
}

// Every item is a sign and the exact name of a column of the table: IdxAdd would skip an
// item without a name and stop at an empty one, and the index would quietly lose columns.
bool CatalogueReader::readIndexFields(const TableDef& table, const IndexDef& index) {
    const QList<QStringView> items = QStringView(index.fields).split(u';');
    for (QStringView item : items) {
        if (item.size() < 2 || (item[0] != u'+' && item[0] != u'-')) {
            return fail(u"index '%1': '%2' is not + or - and a field name"_s.arg(index.name, item));
        }
        if (!hasFieldExactly(table, item.mid(1))) {
            return fail(u"index '%1' names no field '%2' of table '%3'"_s.arg(
                index.name, item.mid(1), table.name));
        }
    }
    return true;
}

bool CatalogueReader::readRelation(const QList<QStringView>& cols) {
    if (cols.size() != 7) {
        return fail(u"a relation line holds a name, the table and its fields, the related table "
                    u"and its fields, and the cascade"_s);
    }
    if (!m_inRelations) {
        if (!endTable()) {
            return false;
        }
        m_inRelations = true;
    }
    RelationDef relation;
    relation.name = cols[1].toString();
    relation.table = cols[2].toString();
    relation.fields = cols[3].toString().split(u';');
    relation.relatedTable = cols[4].toString();
    relation.relatedFields = cols[5].toString().split(u';');
    if (m_relationNames.contains(relation.name.toLower())) {
        return fail(u"relation '%1' is defined twice"_s.arg(relation.name));
    }
    const QStringView cascade = cols[6];
    if (cascade == u"delete" || cascade == u"delete, update") {
        relation.deleteRule = kAdRICascade;
    }
    if (cascade == u"update" || cascade == u"delete, update") {
        relation.updateRule = kAdRICascade;
    }
    if (cascade != u"none" && relation.deleteRule == 0 && relation.updateRule == 0) {
        return fail(u"unknown cascade '%1'"_s.arg(cascade));
    }
    if (relation.fields.size() != relation.relatedFields.size()) {
        return fail(u"relation '%1' pairs %2 fields with %3"_s.arg(
            relation.name, QString::number(relation.fields.size()),
            QString::number(relation.relatedFields.size())));
    }
    if (!readRelationSide(relation, relation.table, relation.fields) ||
        !readRelationSide(relation, relation.relatedTable, relation.relatedFields)) {
        return false;
    }
    m_relationNames.insert(relation.name.toLower());
    m_target.m_relations.append(relation);
    return true;
}

bool CatalogueReader::readRelationSide(const RelationDef& relation, QStringView tableName,
                                       const QStringList& fields) {
    const TableDef* table = m_target.table(tableName);
    if (table == nullptr || table->name != tableName) {
        return fail(u"relation '%1' names no table '%2'"_s.arg(relation.name, tableName));
    }
    for (const QString& field : fields) {
        if (!hasFieldExactly(*table, field)) {
            return fail(u"relation '%1' names no field '%2' of table '%3'"_s.arg(
                relation.name, field, table->name));
        }
    }
    return true;
}

const FieldDef* TableDef::field(QStringView fieldName) const {
    for (const FieldDef& f : fields) {
        if (QStringView(f.name).compare(fieldName, Qt::CaseInsensitive) == 0) {
            return &f;
        }
    }
    return nullptr;
}

const Catalogue& Catalogue::builtIn() {
    static const Catalogue catalogue = [] {
        QFile file(u":/schema/catalogue.tsv"_s);
        if (!file.open(QIODevice::ReadOnly)) {
            Catalogue missing;
            missing.m_error = u"catalogue.tsv: not compiled into the program"_s;
            return missing;
        }
        return parse(QString::fromUtf8(file.readAll()));
    }();
    return catalogue;
}

Catalogue Catalogue::parse(QStringView text, const QString& fileName) {
    Catalogue catalogue;
    CatalogueReader reader(catalogue, fileName);
    if (reader.read(text)) {
        return catalogue;
    }
    Catalogue failed;
    failed.m_error = reader.error();
    return failed;
}

const TableDef* Catalogue::table(QStringView name) const {
    const qsizetype at = m_byName.value(name.toString().toLower(), -1);
    return at < 0 ? nullptr : &m_tables[at];
}

qsizetype Catalogue::fieldCount() const {
    return std::accumulate(m_tables.cbegin(), m_tables.cend(), qsizetype{0},
                           [](qsizetype n, const TableDef& t) { return n + t.fields.size(); });
}

qsizetype Catalogue::indexCount() const {
    return std::accumulate(m_tables.cbegin(), m_tables.cend(), qsizetype{0},
                           [](qsizetype n, const TableDef& t) { return n + t.indexes.size(); });
}

} // namespace schema

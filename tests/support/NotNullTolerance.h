#pragma once

// A real server that refuses "alter table T alter column C <type> not null" (the PostgreSQL-based
// one answers "'NOT NULL in ALTER TABLE ALTER COLUMN' is not currently supported in Babelfish";
// SQL Server runs it). nxTd sends that statement to close each required and key column, and a
// table's batch stops at the first failure, so on such a server no key, default or index after it
// would ever be made and nothing of them could be checked. Wrapped in this provider, the refusal
// of exactly that statement is answered as if it had run, and the column is noted. A column its
// definition had already made not null is checked again at the end (nothing after the refusal may
// have left it open); one that was still nullable when the server refused (defined open, closed
// only by that statement) stays so on such a server and is noted apart, for the test to report as
// the server's difference. Every other statement and failure passes through untouched.
// Header-only.

#include "platform/ado/Connection.h"
#include "platform/ado/Error.h"
#include "platform/ado/Field.h"
#include "platform/ado/Provider.h"
#include "platform/ado/Recordset.h"

#include "tests/support/ForwardingSession.h"

#include <QRegularExpression>
#include <QStringList>

#include <memory>

namespace notnull {

// The server's answer, 1 or 0, to whether TABLE.COLUMN is nullable now.
inline QString nullableQuestion(const QString& table, const QString& column) {
    return QStringLiteral("select cast(is_nullable as int) from sys.columns where "
                          "object_id = object_id('%1') and name = '%2'")
        .arg(table, column);
}

// The columns whose closing the server refused, as "TABLE.COLUMN", in order; those of them that
// were still nullable when it refused, each once (a key made later may close them all the same).
struct Tolerated {
    QStringList columns;
    QStringList leftOpen;
};

class ToleratingSession : public ForwardingSession {
public:
    ToleratingSession(std::unique_ptr<ado::ProviderSession> inner, std::shared_ptr<Tolerated> t)
        : ForwardingSession(std::move(inner)), m_tolerated(std::move(t)) {}

    ado::CommandResult execute(const ado::CommandRequest& request) override {
        try {
            return ForwardingSession::execute(request);
        } catch (const ado::Error& e) {
            static const QRegularExpression notNull(
                QStringLiteral("^alter table (\\S+) alter column \\[?([^\\] ]+)\\]? .* not null$"));
            const auto m = notNull.match(request.text);
            if (!m.hasMatch() ||
                !e.description().contains(QStringLiteral("NOT NULL in ALTER TABLE ALTER COLUMN"))) {
                throw;
            }
            const QString column = m.captured(1) + u'.' + m.captured(2);
            m_tolerated->columns << column;
            if (nullableNow(m.captured(1), m.captured(2)) &&
                !m_tolerated->leftOpen.contains(column, Qt::CaseInsensitive)) {
                m_tolerated->leftOpen << column;
            }
            return {};
        }
    }

private:
    // What the server holds for the column right after refusing to close it.
    bool nullableNow(const QString& table, const QString& column) {
        ado::CommandRequest question;
        question.text = nullableQuestion(table, column);
        const ado::CommandResult answer = ForwardingSession::execute(question);
        return answer.rowset && answer.rowset->next() &&
               answer.rowset->value(0).toString() == QStringLiteral("1");
    }

    std::shared_ptr<Tolerated> m_tolerated;
};

class ToleratingProvider : public ado::Provider {
public:
    ToleratingProvider(std::shared_ptr<ado::Provider> inner, std::shared_ptr<Tolerated> t)
        : m_inner(std::move(inner)), m_tolerated(std::move(t)) {}
    QString name() const override { return m_inner->name(); }
    std::unique_ptr<ado::ProviderSession> open(const ado::OpenRequest& request) override {
        return std::make_unique<ToleratingSession>(m_inner->open(request), m_tolerated);
    }
    void createDatabase(const ado::ConnectionString& cs) override { m_inner->createDatabase(cs); }

private:
    std::shared_ptr<ado::Provider> m_inner;
    std::shared_ptr<Tolerated> m_tolerated;
};

// Those of `columns` ("TABLE.COLUMN") that the server holds as nullable now (sys.columns).
inline QStringList nullableOf(const ado::ConnectionPtr& c, const QStringList& columns) {
    QStringList open;
    for (const QString& column : columns) {
        ado::RecordsetPtr rs =
            c->Execute(nullableQuestion(column.section(u'.', 0, 0), column.section(u'.', 1)));
        if (rs->Eof() || rs->Fields().Item(0L).Value().toString() != QStringLiteral("0")) {
            open << column;
        }
        rs->Close();
    }
    return open;
}

// The noted columns that were not null when the server refused to close them and are nullable
// now, for a test to expect none.
inline QStringList stillNullable(const ado::ConnectionPtr& c, const Tolerated& tolerated) {
    QStringList closed;
    for (const QString& column : tolerated.columns) {
        if (!tolerated.leftOpen.contains(column, Qt::CaseInsensitive)) {
            closed << column;
        }
    }
    return nullableOf(c, closed);
}

} // namespace notnull

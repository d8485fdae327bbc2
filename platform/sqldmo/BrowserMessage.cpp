#include "platform/sqldmo/BrowserMessage.h"

#include <QByteArrayView>
#include <QList>
#include <QStringDecoder>

#include <utility>

using namespace Qt::StringLiterals;

namespace sqldmo::ssrp {
namespace {

// RESP_DATA is text in the server's ANSI code page. Valid UTF-8 is taken as such; anything else
// byte for byte, which is right for the Latin letters of the Western code pages.
QString decodeText(const QByteArray& bytes) {
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = utf8(bytes);
    return utf8.hasError() ? QString::fromLatin1(bytes) : text;
}

bool isName(const QByteArray& bytes, qsizetype maxBytes) {
    if (bytes.isEmpty() || bytes.size() > maxBytes) {
        return false;
    }
    for (const char c : bytes) {
        const auto u = static_cast<unsigned char>(c);
        if (u < 0x20 || u == 0x7F) {
            return false;
        }
    }
    return true;
}

std::optional<int> portOf(const QByteArray& text) {
    if (text.isEmpty() || text.size() > 5) {
        return std::nullopt;
    }
    int port = 0;
    for (const char c : text) {
        if (c < '0' || c > '9') {
            return std::nullopt;
        }
        port = port * 10 + (c - '0');
    }
    if (port < 1 || port > 65535) {
        return std::nullopt;
    }
    return port;
}

bool is(const QByteArray& key, QByteArrayView name) {
    return QByteArrayView(key).compare(name, Qt::CaseInsensitive) == 0;
}

using Fields = std::vector<std::pair<QByteArray, QByteArray>>;

// Judges one record once its ";;" is met. A repeated key means two records ran together, so the
// record is dropped as a whole rather than guessed at.
std::optional<InstanceRecord> recordOf(const Fields& fields) {
    InstanceRecord record;
    bool hasServer = false;
    bool hasInstance = false;
    for (qsizetype i = 0; i < static_cast<qsizetype>(fields.size()); ++i) {
        const auto& [key, value] = fields[static_cast<size_t>(i)];
        for (qsizetype j = 0; j < i; ++j) {
            if (is(fields[static_cast<size_t>(j)].first, key)) {
                return std::nullopt;
            }
        }
        if (is(key, "ServerName")) {
            if (!isName(value, kMaxServerName)) {
                return std::nullopt;
            }
            record.serverName = decodeText(value);
            hasServer = true;
        } else if (is(key, "InstanceName")) {
            if (!isName(value, kMaxInstanceName)) {
                return std::nullopt;
            }
            record.instanceName = decodeText(value);
            hasInstance = true;
        } else if (is(key, "IsClustered")) {
            record.clustered = is(value, "Yes");
        } else if (is(key, "Version")) {
            if (value.size() > kMaxVersion) {
                return std::nullopt;
            }
            record.version = QString::fromLatin1(value);
        } else if (is(key, "tcp")) {
            const std::optional<int> port = portOf(value);
            if (!port) {
                return std::nullopt;
            }
            record.tcpPort = *port;
        } else if (is(key, "np")) {
            record.pipeName = decodeText(value);
        }
        // via, rpc, spx, adsp, bv and whatever a later server adds: not needed here.
    }
    if (!hasServer || !hasInstance) {
        return std::nullopt;
    }
    return record;
}

QByteArray request(char kind) {
    return QByteArray(1, kind);
}

} // namespace

bool InstanceRecord::isDefaultInstance() const {
    return instanceName.compare(u"MSSQLSERVER", Qt::CaseInsensitive) == 0;
}

QByteArray broadcastRequest() {
    return request(kClntBcastEx);
}

QByteArray serverRequest() {
    return request(kClntUcastEx);
}

QByteArray instanceRequest(const QString& instance) {
    // Latin-1 where every character fits (the Western code pages agree with it on letters);
    // UTF-8 otherwise.
    bool latin1 = true;
    for (const QChar c : instance) {
        latin1 = latin1 && c.unicode() <= 0xFF;
    }
    const QByteArray name = latin1 ? instance.toLatin1() : instance.toUtf8();
    if (name.isEmpty() || name.size() > kMaxRequestedInstance || name.contains('\0') ||
        name.contains(';')) {
        return {};
    }
    return request(kClntUcastInst) + name + '\0';
}

Answer parseRecords(const QByteArray& data) {
    Answer answer;
    const QList<QByteArray> tokens = data.split(';');
    const qsizetype count = tokens.size();
    Fields fields;
    qsizetype i = 0;
    while (i < count) {
        const QByteArray& key = tokens.at(i);
        if (key.isEmpty()) {
            // An empty key followed by a semicolon is the ";;" that ends a record. The text
            // after the last semicolon is not: there the data simply ends.
            if (i + 1 == count) {
                break;
            }
            if (!fields.empty()) {
                if (std::optional<InstanceRecord> record = recordOf(fields)) {
                    answer.records.push_back(std::move(*record));
                } else {
                    ++answer.skipped;
                }
                fields.clear();
            }
            ++i;
            continue;
        }
        // Banyan VINES names three values (item, group, organisation); every other key one.
        const qsizetype values = is(key, "bv") ? 3 : 1;
        if (i + values >= count) {
            break;
        }
        fields.emplace_back(key, tokens.at(i + 1));
        i += 1 + values;
    }
    if (!fields.empty()) {
        ++answer.skipped; // never ended: the datagram was cut short
    }
    return answer;
}

std::optional<Answer> parseResponse(const QByteArray& datagram, qsizetype maxData) {
    if (datagram.size() < 3 || datagram.at(0) != kSvrResp) {
        return std::nullopt;
    }
    const qsizetype declared = static_cast<unsigned char>(datagram.at(1)) |
                               (static_cast<unsigned char>(datagram.at(2)) << 8);
    if (declared > maxData || declared > datagram.size() - 3) {
        return std::nullopt;
    }
    QByteArray data = datagram.mid(3, declared);
    while (data.endsWith('\0')) {
        data.chop(1);
    }
    return parseRecords(data);
}

} // namespace sqldmo::ssrp

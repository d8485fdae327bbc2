#include "platform/ado/sqlserver/odbc/DriverString.h"

#include "platform/ado/sqlserver/odbc/Diagnostics.h"
#include "platform/ado/sqlserver/odbc/HResults.h"

#include <QStringList>

#include <array>

using namespace Qt::StringLiterals;

namespace odbc {
namespace {

enum class Key {
    Ignored, DataSource, Database, User, Password, Trusted, Integrated, Persist, ConnectTimeout,
    CommandProperties, CommandTimeout, Encrypt, TrustCertificate, Pooling, Application,
    Workstation, Language, PacketSize, NetworkLibrary
};

struct KeyName {
    const char16_t* name;
    Key key;
};

// The provider's keywords and their synonyms. Keywords that only the OLE DB service layer or
// ADO reads (pooling figures, translation) are accepted and have no effect on the driver.
constexpr std::array kKeys{
    KeyName{u"provider", Key::Ignored},
    KeyName{u"data source", Key::DataSource},
    KeyName{u"server", Key::DataSource},
    KeyName{u"address", Key::DataSource},
    KeyName{u"addr", Key::DataSource},
    KeyName{u"network address", Key::DataSource},
    KeyName{u"initial catalog", Key::Database},
    KeyName{u"database", Key::Database},
    KeyName{u"user id", Key::User},
    KeyName{u"uid", Key::User},
    KeyName{u"password", Key::Password},
    KeyName{u"pwd", Key::Password},
    KeyName{u"trusted_connection", Key::Trusted},
    KeyName{u"integrated security", Key::Integrated},
    KeyName{u"persist security info", Key::Persist},
    KeyName{u"connect timeout", Key::ConnectTimeout},
    KeyName{u"connection timeout", Key::ConnectTimeout},
    KeyName{u"timeout", Key::ConnectTimeout},
    KeyName{u"command properties", Key::CommandProperties},
    KeyName{u"command time out", Key::CommandTimeout},
    KeyName{u"use encryption for data", Key::Encrypt},
    KeyName{u"encrypt", Key::Encrypt},
    KeyName{u"trust server certificate", Key::TrustCertificate},
    KeyName{u"trustservercertificate", Key::TrustCertificate},
    KeyName{u"pooling", Key::Pooling},
    KeyName{u"ole db services", Key::Ignored},
    KeyName{u"connection lifetime", Key::Ignored},
    KeyName{u"max pool size", Key::Ignored},
    KeyName{u"min pool size", Key::Ignored},
    KeyName{u"auto translate", Key::Ignored},
    KeyName{u"application name", Key::Application},
    KeyName{u"app", Key::Application},
    KeyName{u"workstation id", Key::Workstation},
    KeyName{u"wsid", Key::Workstation},
    KeyName{u"current language", Key::Language},
    KeyName{u"language", Key::Language},
    KeyName{u"packet size", Key::PacketSize},
    KeyName{u"network library", Key::NetworkLibrary},
    KeyName{u"network", Key::NetworkLibrary},
};

[[noreturn]] void refuse(const QString& description) {
    throw Failure(hr::E_FAIL_, description);
}

Key keyOf(const QString& keyword) {
    const QString k = keyword.trimmed().toLower();
    for (const KeyName& entry : kKeys) {
        if (k == QStringView(entry.name)) {
            return entry.key;
        }
    }
    refuse(u"Connection string: the keyword '%1' is not supported by the SQL Server provider."_s.arg(
        keyword.trimmed()));
}

bool boolOf(const QString& keyword, const QString& value, bool sspiMeansTrue) {
    const QString v = value.trimmed().toLower();
    if (v == u"true" || v == u"yes" || v == u"1" || (sspiMeansTrue && v == u"sspi")) {
        return true;
    }
    if (v == u"false" || v == u"no" || v == u"0" || v.isEmpty()) {
        return false;
    }
    refuse(u"Connection string: '%1' is not a valid value for '%2'."_s.arg(value, keyword));
}

int secondsOf(const QString& keyword, const QString& value) {
    bool ok = false;
    const int n = value.trimmed().toInt(&ok);
    if (!ok || n < 0) {
        refuse(u"Connection string: '%1' is not a valid value for '%2'."_s.arg(value, keyword));
    }
    return n;
}

// Command Properties='Command Time Out=0': a nested list of command keywords.
void readCommandProperties(const QString& value, LoginSettings* s) {
    for (const QString& part : value.split(u';', Qt::SkipEmptyParts)) {
        const qsizetype eq = part.indexOf(u'=');
        const QString keyword = eq < 0 ? part : part.left(eq);
        if (keyOf(keyword) != Key::CommandTimeout) {
            refuse(u"Connection string: the command property '%1' is not supported."_s.arg(
                keyword.trimmed()));
        }
        s->commandTimeout = secondsOf(keyword.trimmed(), eq < 0 ? QString() : part.mid(eq + 1));
    }
}

void apply(Key key, const QString& keyword, const QString& value, LoginSettings* s) {
    switch (key) {
    case Key::Ignored: break;
    case Key::DataSource:
        s->dataSource = value;
        s->server = parseDataSource(value);
        break;
    case Key::Database: s->database = value; break;
    case Key::User: s->user = value; break;
    case Key::Password: s->password = value; break;
    case Key::Trusted:
    case Key::Integrated: s->integrated = boolOf(keyword, value, true); break;
    case Key::Persist: s->persistSecurityInfo = boolOf(keyword, value, false); break;
    case Key::ConnectTimeout: s->connectTimeout = secondsOf(keyword, value); break;
    case Key::CommandProperties: readCommandProperties(value, s); break;
    case Key::CommandTimeout: s->commandTimeout = secondsOf(keyword, value); break;
    case Key::Encrypt: s->encryptData = boolOf(keyword, value, false); break;
    case Key::TrustCertificate: s->trustServerCertificate = boolOf(keyword, value, false); break;
    case Key::Pooling: s->pooling = boolOf(keyword, value, false); break;
    case Key::Application: s->application = value; break;
    case Key::Workstation: s->workstation = value; break;
    case Key::Language: s->language = value; break;
    case Key::PacketSize: s->packetSize = secondsOf(keyword, value); break;
    case Key::NetworkLibrary:
        // Only TCP/IP is there on every platform.
        if (value.trimmed().compare(u"dbmssocn", Qt::CaseInsensitive) != 0) {
            refuse(u"Connection string: network library '%1' is not available; only TCP/IP "
                   u"(dbmssocn) is."_s.arg(value));
        }
        break;
    }
}

// A value as the driver's parser reads it back unchanged.
QString quoted(const QString& value, Driver driver, bool always) {
    const bool plain = !value.contains(u';') && !value.contains(u'{') && !value.contains(u'}') &&
                       !value.contains(u'=') && value.trimmed() == value;
    if (plain && !always) {
        return value;
    }
    if (driver == Driver::FreeTds) {
        // FreeTDS ends a braced value at the first "};" and has no escape for it.
        if (value.contains(u"};")) {
            refuse(u"Connection string: a value containing \"};\" cannot be passed to the "
                   u"FreeTDS driver."_s);
        }
        return u'{' + value + u'}';
    }
    QString escaped = value;
    escaped.replace(u"}"_s, u"}}"_s);
    return u'{' + escaped + u'}';
}

QString driverName(Driver driver) {
    switch (driver) {
    case Driver::FreeTds: return u"{FreeTDS}"_s;
    case Driver::Microsoft18: return u"{ODBC Driver 18 for SQL Server}"_s;
    case Driver::Microsoft17: return u"{ODBC Driver 17 for SQL Server}"_s;
    }
    return {};
}

} // namespace

ServerAddress parseDataSource(const QString& dataSource) {
    QString text = dataSource.trimmed();
    if (text.startsWith(u"tcp:", Qt::CaseInsensitive)) {
        text = text.mid(4);
    } else if (text.startsWith(u"np:", Qt::CaseInsensitive) ||
               text.startsWith(u"lpc:", Qt::CaseInsensitive)) {
        refuse(u"Data Source '%1': named pipes and shared memory are not available; connect "
               u"over TCP (server, server\\instance or server,port)."_s.arg(dataSource));
    }
    ServerAddress address;
    const qsizetype comma = text.lastIndexOf(u',');
    if (comma >= 0) {
        bool ok = false;
        address.port = text.mid(comma + 1).trimmed().toInt(&ok);
        if (!ok || address.port < 1 || address.port > 65535) {
            refuse(u"Data Source '%1': '%2' is not a TCP port."_s.arg(dataSource,
                                                                     text.mid(comma + 1)));
        }
        text = text.left(comma).trimmed();
    }
    const qsizetype slash = text.indexOf(u'\\');
    if (slash >= 0) {
        address.instance = text.mid(slash + 1).trimmed();
        text = text.left(slash).trimmed();
    }
    // The server of this computer, in the spellings the Microsoft client tools accept.
    if (text.isEmpty() || text == u"." || text.compare(u"(local)", Qt::CaseInsensitive) == 0) {
        text = u"localhost"_s;
    }
    address.host = text;
    // The default instance answers on its port without a browser look-up.
    if (address.instance.compare(u"MSSQLSERVER", Qt::CaseInsensitive) == 0) {
        address.instance.clear();
    }
    return address;
}

LoginSettings readLoginSettings(const Keywords& keywords) {
    LoginSettings s;
    s.server = parseDataSource(QString());
    for (const auto& [keyword, value] : keywords) {
        apply(keyOf(keyword), keyword.trimmed(), value, &s);
    }
    return s;
}

QString driverString(const LoginSettings& s, Driver driver, int port) {
    const bool freeTds = driver == Driver::FreeTds;
    QString out = u"DRIVER="_s + driverName(driver) + u';';
    if (freeTds) {
        out += u"Server="_s + quoted(s.server.host, driver, false) + u";Port="_s +
               QString::number(port) + u';';
    } else {
        out += u"Server="_s + quoted(u"tcp:"_s + s.server.host + u',' + QString::number(port),
                                    driver, false) + u';';
    }
    if (!s.database.isEmpty()) {
        out += u"Database="_s + quoted(s.database, driver, false) + u';';
    }
    if (s.integrated) {
        // FreeTDS: Kerberos with the ticket of the process user; Windows: SSPI.
        out += u"Trusted_Connection=yes;"_s;
    } else {
        out += u"UID="_s + quoted(s.user, driver, false) + u";PWD="_s +
               quoted(s.password, driver, true) + u';';
    }
    if (freeTds) {
        // 7.4 is asked for and the server answers with its own version; UTF-8 for every narrow
        // text the driver still handles. Encryption is requested: the login and, where the
        // server wants it, everything is encrypted whenever the server can; a server without
        // encryption still gets a connection.
        out += u"TDS_Version=7.4;ClientCharset=UTF-8;Encryption="_s +
               (s.encryptData ? u"require"_s : u"request"_s) + u';';
    } else {
        // The Microsoft drivers always encrypt the login packet; "no" leaves the data in clear
        // unless the server forces encryption.
        out += u"Encrypt="_s + (s.encryptData ? u"yes"_s : u"no"_s) + u';';
        if (s.trustServerCertificate) {
            out += u"TrustServerCertificate=yes;"_s;
        }
    }
    if (!s.application.isEmpty()) {
        out += u"APP="_s + quoted(s.application, driver, false) + u';';
    }
    if (!s.workstation.isEmpty()) {
        out += u"WSID="_s + quoted(s.workstation, driver, false) + u';';
    }
    if (!s.language.isEmpty()) {
        out += u"Language="_s + quoted(s.language, driver, false) + u';';
    }
    if (s.packetSize > 0) {
        out += u"PacketSize="_s + QString::number(s.packetSize) + u';';
    }
    return out;
}

Keywords withoutPassword(const Keywords& keywords) {
    Keywords out;
    for (const auto& entry : keywords) {
        const QString k = entry.first.trimmed().toLower();
        if (k != u"password" && k != u"pwd") {
            out.push_back(entry);
        }
    }
    return out;
}

} // namespace odbc

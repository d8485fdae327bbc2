#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

// The messages of the SQL Server Browser (the SQL Server Resolution Protocol, UDP 1434): the
// requests we send and the SVR_RESP answers we read. Answers come from the network, so every
// length is checked and a record that breaks the format is dropped, never half believed.
namespace sqldmo::ssrp {

inline constexpr quint16 kBrowserPort = 1434;

inline constexpr char kClntBcastEx = 0x02;   // every instance, to a broadcast address
inline constexpr char kClntUcastEx = 0x03;   // every instance of one server
inline constexpr char kClntUcastInst = 0x04; // one instance of one server
inline constexpr char kSvrResp = 0x05;       // the answer to all three

// Limits of the format, in bytes.
inline constexpr qsizetype kMaxRequestedInstance = 32; // the name in a CLNT_UCAST_INST
inline constexpr qsizetype kMaxInstanceAnswer = 1024;  // RESP_DATA answering CLNT_UCAST_INST
inline constexpr qsizetype kMaxListAnswer = 65535;     // RESP_DATA answering the other two
inline constexpr qsizetype kMaxServerName = 255;
inline constexpr qsizetype kMaxInstanceName = 255;
inline constexpr qsizetype kMaxVersion = 16;
inline constexpr qsizetype kMaxDatagram = 3 + kMaxListAnswer;

// One instance as its browser describes it.
struct InstanceRecord {
    QString serverName;
    QString instanceName;
    bool clustered = false;
    QString version;
    int tcpPort = 0; // 0: the instance does not listen on TCP
    QString pipeName;

    // The unnamed instance of a server goes by this name in the browser's records.
    bool isDefaultInstance() const;
};

// What one SVR_RESP datagram said.
struct Answer {
    std::vector<InstanceRecord> records;
    int skipped = 0; // records dropped as malformed
};

QByteArray broadcastRequest();
QByteArray serverRequest();
// The request for one instance; empty when the name cannot be sent (empty, longer than 32
// bytes, or with a NUL or a semicolon in it).
QByteArray instanceRequest(const QString& instance);

// Reads one datagram. Nothing when it is not an SVR_RESP at all: too short, another first byte,
// or RESP_SIZE beyond the datagram or above maxData. Bytes after RESP_SIZE are ignored.
std::optional<Answer> parseResponse(const QByteArray& datagram, qsizetype maxData);

// The records of RESP_DATA: "key;value;" pairs, each record ended by an empty key (";;").
Answer parseRecords(const QByteArray& data);

} // namespace sqldmo::ssrp

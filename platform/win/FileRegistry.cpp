#include "platform/win/FileRegistry.h"

#include "platform/win/Cp1252.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLockFile>
#include <QSaveFile>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace win {

struct FileRegistry::Node {
    QString name;
    std::vector<std::pair<QString, RegValue>> values;
    std::vector<Node> keys; // kept in the order of names without regard to case

    Node* child(const QString& key) {
        auto it = std::find_if(keys.begin(), keys.end(), [&](const Node& n) {
            return n.name.compare(key, Qt::CaseInsensitive) == 0;
        });
        return it == keys.end() ? nullptr : &*it;
    }
    Node& addChild(const QString& key) {
        auto it =
            std::lower_bound(keys.begin(), keys.end(), key, [](const Node& n, const QString& k) {
                return n.name.compare(k, Qt::CaseInsensitive) < 0;
            });
        return *keys.insert(it, Node{key, {}, {}});
    }
    RegValue* value(const QString& valueName) {
        for (auto& [n, v] : values) {
            if (n.compare(valueName, Qt::CaseInsensitive) == 0) {
                return &v;
            }
        }
        return nullptr;
    }
};

namespace {

using Node = FileRegistry::Node;

constexpr qint64 kMaxHiveBytes = 64 * 1024 * 1024;
constexpr int kMaxDepth = 512; // deeper than any key the system has; keeps a bad file finite

bool isRoot(HKey key) {
    return key == kHKeyCurrentUser || key == kHKeyLocalMachine;
}

// Subkey paths: backslash-separated; a leading backslash is refused as the system refuses it.
std::optional<QStringList> splitPath(const QString& subkey) {
    if (subkey.startsWith(u'\\')) {
        return std::nullopt;
    }
    return subkey.split(u'\\', Qt::SkipEmptyParts);
}

Node* walk(Node& root, const QStringList& path) {
    Node* node = &root;
    for (const QString& part : path) {
        node = node->child(part);
        if (node == nullptr) {
            return nullptr;
        }
    }
    return node;
}

QJsonObject valueToJson(const QString& name, const RegValue& v) {
    QJsonObject o{{u"name"_s, name}, {u"type"_s, static_cast<qint64>(v.type)}};
    if (v.type == RegType::Sz || v.type == RegType::ExpandSz) {
        o.insert(u"text"_s, fromCp1252(v.data));
    } else if (v.type == RegType::Dword && v.data.size() == 4) {
        const auto* b = reinterpret_cast<const unsigned char*>(v.data.constData());
        o.insert(u"dword"_s, static_cast<qint64>(b[0] | (b[1] << 8) | (b[2] << 16) |
                                                 (std::uint32_t(b[3]) << 24)));
    } else {
        o.insert(u"hex"_s, QString::fromLatin1(v.data.toHex()));
    }
    return o;
}

std::optional<RegValue> valueFromJson(const QJsonObject& o) {
    RegValue v;
    v.type = static_cast<RegType>(o.value(u"type"_s).toInteger());
    if (o.contains(u"text"_s)) {
        v.data = toCp1252(o.value(u"text"_s).toString());
    } else if (o.contains(u"dword"_s)) {
        const auto d = static_cast<std::uint32_t>(o.value(u"dword"_s).toInteger());
        const char bytes[4] = {char(d & 0xFF), char((d >> 8) & 0xFF), char((d >> 16) & 0xFF),
                               char((d >> 24) & 0xFF)};
        v.data = QByteArray(bytes, 4);
    } else if (o.contains(u"hex"_s)) {
        v.data = QByteArray::fromHex(o.value(u"hex"_s).toString().toLatin1());
    } else {
        return std::nullopt;
    }
    return v;
}

QJsonObject nodeToJson(const Node& node) {
    QJsonArray values;
    for (const auto& [name, v] : node.values) {
        values.append(valueToJson(name, v));
    }
    QJsonArray keys;
    for (const Node& child : node.keys) {
        keys.append(nodeToJson(child));
    }
    return {{u"name"_s, node.name}, {u"values"_s, values}, {u"keys"_s, keys}};
}

bool nodeFromJson(const QJsonObject& o, Node& node, int depth) {
    if (depth > kMaxDepth) {
        return false;
    }
    node.name = o.value(u"name"_s).toString();
    for (const QJsonValue& item : o.value(u"values"_s).toArray()) {
        const QString name = item.toObject().value(u"name"_s).toString();
        auto value = valueFromJson(item.toObject());
        if (!value) {
            return false;
        }
        if (RegValue* existing = node.value(name)) {
            *existing = *value;
        } else {
            node.values.emplace_back(name, *value);
        }
    }
    for (const QJsonValue& item : o.value(u"keys"_s).toArray()) {
        Node child;
        if (!nodeFromJson(item.toObject(), child, depth + 1) || child.name.isEmpty() ||
            child.name.contains(u'\\') || node.child(child.name) != nullptr) {
            return false;
        }
        node.addChild(child.name) = std::move(child);
    }
    return true;
}

} // namespace

FileRegistry::FileRegistry(QString folder) : m_folder(std::move(folder)) {}

QString FileRegistry::hiveFile(HKey root) const {
    if (root == kHKeyCurrentUser) {
        return m_folder + u"/HKEY_CURRENT_USER.json"_s;
    }
    if (root == kHKeyLocalMachine) {
        return m_folder + u"/HKEY_LOCAL_MACHINE.json"_s;
    }
    return {};
}

std::optional<FileRegistry::Place> FileRegistry::place(HKey key) const {
    if (isRoot(key)) {
        return Place{key, {}};
    }
    QMutexLocker lock(&m_mutex);
    auto it = m_open.find(key);
    if (it == m_open.end()) {
        return std::nullopt;
    }
    return it->second;
}

HKey FileRegistry::issue(Place p) {
    QMutexLocker lock(&m_mutex);
    while (m_open.count(m_next) != 0 || isRoot(m_next) || m_next == 0) {
        ++m_next;
    }
    const HKey key = m_next++;
    m_open.emplace(key, std::move(p));
    return key;
}

template <class Step> long FileRegistry::withHive(HKey key, bool write, Step&& step) {
    const auto where = place(key);
    if (!where) {
        return reg::kInvalidHandle;
    }
    const QString file = hiveFile(where->root);
    if (write && !QDir().mkpath(m_folder)) {
        return reg::kAccessDenied;
    }
    QLockFile lock(file + u".lock"_s);
    if (QDir(m_folder).exists() && !lock.tryLock(10000)) {
        return reg::kAccessDenied;
    }
    Node root;
    QFile in(file);
    if (in.exists()) {
        if (!in.open(QIODevice::ReadOnly) || in.size() > kMaxHiveBytes) {
            return reg::kAccessDenied;
        }
        const QJsonDocument doc = QJsonDocument::fromJson(in.readAll());
        if (!doc.isObject() || !nodeFromJson(doc.object(), root, 0)) {
            return reg::kAccessDenied;
        }
    }
    Node* node = walk(root, where->path);
    if (node == nullptr) {
        return reg::kKeyDeleted;
    }
    bool changed = false;
    const long result = step(*node, *where, changed);
    if (changed) {
        QSaveFile out(file);
        if (!out.open(QIODevice::WriteOnly) ||
            out.write(QJsonDocument(nodeToJson(root)).toJson()) < 0 || !out.commit()) {
            return reg::kAccessDenied;
        }
    }
    return result;
}

long FileRegistry::openKey(HKey parent, const QString& subkey, HKey* result) {
    const auto parts = splitPath(subkey);
    if (!parts) {
        return reg::kBadPathname;
    }
    Place opened;
    const long rc = withHive(parent, false, [&](Node& node, const Place& base, bool&) {
        Node* at = &node;
        opened = base;
        for (const QString& part : *parts) {
            at = at->child(part);
            if (at == nullptr) {
                return reg::kFileNotFound;
            }
            opened.path.append(at->name);
        }
        return reg::kSuccess;
    });
    if (rc != reg::kSuccess) {
        return rc;
    }
    *result = issue(std::move(opened));
    return reg::kSuccess;
}

long FileRegistry::createKey(HKey parent, const QString& subkey, HKey* result) {
    const auto parts = splitPath(subkey);
    if (!parts) {
        return reg::kBadPathname;
    }
    Place opened;
    const long rc = withHive(parent, true, [&](Node& node, const Place& base, bool& changed) {
        Node* at = &node;
        opened = base;
        for (const QString& part : *parts) {
            Node* next = at->child(part);
            if (next == nullptr) {
                next = &at->addChild(part);
                changed = true;
            }
            at = next;
            opened.path.append(at->name);
        }
        return reg::kSuccess;
    });
    if (rc != reg::kSuccess) {
        return rc;
    }
    *result = issue(std::move(opened));
    return reg::kSuccess;
}

long FileRegistry::closeKey(HKey key) {
    if (isRoot(key)) {
        return reg::kSuccess;
    }
    QMutexLocker lock(&m_mutex);
    return m_open.erase(key) != 0 ? reg::kSuccess : reg::kInvalidHandle;
}

long FileRegistry::deleteKey(HKey parent, const QString& subkey) {
    const auto parts = splitPath(subkey);
    if (!parts) {
        return reg::kBadPathname;
    }
    if (parts->isEmpty()) {
        return reg::kAccessDenied;
    }
    return withHive(parent, true, [&](Node& node, const Place&, bool& changed) {
        Node* owner = walk(node, parts->mid(0, parts->size() - 1));
        Node* target = owner == nullptr ? nullptr : owner->child(parts->last());
        if (target == nullptr) {
            return reg::kFileNotFound;
        }
        if (!target->keys.empty()) {
            return reg::kAccessDenied;
        }
        std::erase_if(owner->keys, [&](const Node& n) { return &n == target; });
        changed = true;
        return reg::kSuccess;
    });
}

long FileRegistry::enumKey(HKey key, std::uint32_t index, QString* name) {
    return withHive(key, false, [&](Node& node, const Place&, bool&) {
        if (index >= node.keys.size()) {
            return reg::kNoMoreItems;
        }
        *name = node.keys[index].name;
        return reg::kSuccess;
    });
}

long FileRegistry::queryValue(HKey key, const QString& name, RegValue* value) {
    return withHive(key, false, [&](Node& node, const Place&, bool&) {
        const RegValue* found = node.value(name);
        if (found == nullptr) {
            return reg::kFileNotFound;
        }
        *value = *found;
        return reg::kSuccess;
    });
}

long FileRegistry::setValue(HKey key, const QString& name, const RegValue& value) {
    return withHive(key, true, [&](Node& node, const Place&, bool& changed) {
        if (RegValue* existing = node.value(name)) {
            *existing = value;
        } else {
            node.values.emplace_back(name, value);
        }
        changed = true;
        return reg::kSuccess;
    });
}

long FileRegistry::deleteValue(HKey key, const QString& name) {
    return withHive(key, true, [&](Node& node, const Place&, bool& changed) {
        const auto before = node.values.size();
        std::erase_if(node.values, [&](const auto& entry) {
            return entry.first.compare(name, Qt::CaseInsensitive) == 0;
        });
        changed = node.values.size() != before;
        return changed ? reg::kSuccess : reg::kFileNotFound;
    });
}

} // namespace win

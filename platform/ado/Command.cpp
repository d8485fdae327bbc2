#include "platform/ado/Command.h"

#include "platform/ado/Connection.h"
#include "platform/ado/Error.h"
#include "platform/ado/Recordset.h"

using namespace Qt::StringLiterals;

namespace ado {
namespace {

const QString kSource = u"ADODB.Command"_s;

} // namespace

Parameter::Parameter(QString name, DataTypeEnum type, ParameterDirectionEnum direction, long size,
                     vb::Variant value) {
    m_value.name = std::move(name);
    m_value.type = type;
    m_value.direction = direction;
    m_value.size = size;
    m_value.value = std::move(value);
}

Parameter& Parameters::Item(long index) const {
    if (index < 0 || index >= Count()) {
        raise(HResult::adErrItemNotFound, u"ADODB.Parameters"_s);
    }
    return *m_items[static_cast<std::size_t>(index)];
}

Parameter& Parameters::Item(QStringView name) const {
    for (const auto& p : m_items) {
        if (p->Name().compare(name, Qt::CaseInsensitive) == 0) {
            return *p;
        }
    }
    raise(HResult::adErrItemNotFound, u"ADODB.Parameters"_s);
}

void Parameters::Append(const ParameterPtr& parameter) {
    if (!parameter || parameter->Type() == DataTypeEnum::adEmpty) {
        raise(HResult::adErrInvalidParamInfo, u"ADODB.Parameters"_s);
    }
    m_items.push_back(parameter);
}

void Parameters::Delete(long index) {
    Item(index);
    m_items.erase(m_items.begin() + index);
}

void Parameters::Delete(QStringView name) {
    for (auto it = m_items.begin(); it != m_items.end(); ++it) {
        if ((*it)->Name().compare(name, Qt::CaseInsensitive) == 0) {
            m_items.erase(it);
            return;
        }
    }
    raise(HResult::adErrItemNotFound, u"ADODB.Parameters"_s);
}

void Command::setActiveConnection(const ConnectionPtr& connection) { m_connection = connection; }

void Command::setActiveConnection(const QString& connectionString) {
    auto connection = Connection::create();
    connection->Open(connectionString);
    m_connection = std::move(connection);
}

ParameterPtr Command::CreateParameter(const QString& name, DataTypeEnum type,
                                      ParameterDirectionEnum direction, long size,
                                      const vb::Variant& value) const {
    return std::make_shared<Parameter>(name, type, direction, size, value);
}

RecordsetPtr Command::Execute(long* recordsAffected, const std::vector<vb::Variant>* values,
                              long options) {
    if (!m_connection || m_connection->State() != adStateOpen) {
        raise(HResult::adErrInvalidConnection, kSource);
    }
    if (m_text.isEmpty()) {
        throw Error(HResult::DB_E_NOCOMMAND, u"Command text was not set for the command object."_s,
                    kSource);
    }
    CommandRequest request;
    request.text = m_text;
    request.type = m_type == CommandTypeEnum::adCmdUnspecified ? CommandTypeEnum::adCmdUnknown
                                                               : m_type;
    request.options = options;
    request.timeoutSeconds = m_timeout;
    request.cursorLocation = m_connection->CursorLocation();
    for (const auto& p : m_parameters) {
        request.parameters.push_back(p->data());
    }
    if (values != nullptr) {
        for (std::size_t i = 0; i < values->size() && i < request.parameters.size(); ++i) {
            request.parameters[i].value = (*values)[i];
        }
    }
    CommandResult result;
    try {
        result = m_connection->session().execute(request);
    } catch (const Error& e) {
        m_connection->providerFailed(e);
    }
    if (recordsAffected != nullptr) {
        *recordsAffected = result.recordsAffected;
    }
    auto recordset = std::make_shared<Recordset>();
    recordset->setSource(m_text);
    if (result.rowset) {
        recordset->attach(std::move(result.rowset), request, m_connection);
    }
    return recordset;
}

} // namespace ado

#pragma once

#include "platform/ado/Enums.h"
#include "platform/ado/Provider.h"
#include "platform/vb/Variant.h"

#include <QString>
#include <QStringView>

#include <memory>
#include <vector>

namespace ado {

class Connection;
using ConnectionPtr = std::shared_ptr<Connection>;
class Recordset;
using RecordsetPtr = std::shared_ptr<Recordset>;

class Parameter {
public:
    Parameter() = default;
    Parameter(QString name, DataTypeEnum type, ParameterDirectionEnum direction, long size,
              vb::Variant value);

    const QString& Name() const noexcept { return m_value.name; }
    void setName(const QString& name) { m_value.name = name; }
    DataTypeEnum Type() const noexcept { return m_value.type; }
    void setType(DataTypeEnum type) { m_value.type = type; }
    ParameterDirectionEnum Direction() const noexcept { return m_value.direction; }
    void setDirection(ParameterDirectionEnum direction) { m_value.direction = direction; }
    long Size() const noexcept { return m_value.size; }
    void setSize(long size) { m_value.size = size; }
    std::uint8_t Precision() const noexcept { return m_value.precision; }
    void setPrecision(std::uint8_t precision) { m_value.precision = precision; }
    std::uint8_t NumericScale() const noexcept { return m_value.numericScale; }
    void setNumericScale(std::uint8_t scale) { m_value.numericScale = scale; }
    const vb::Variant& Value() const noexcept { return m_value.value; }
    void setValue(const vb::Variant& value) { m_value.value = value; }

    const ParameterValue& data() const noexcept { return m_value; }

private:
    ParameterValue m_value;
};
using ParameterPtr = std::shared_ptr<Parameter>;

class Parameters {
public:
    long Count() const noexcept { return static_cast<long>(m_items.size()); }
    Parameter& Item(long index) const;
    Parameter& Item(QStringView name) const;
    // Throws adErrInvalidParamInfo for a parameter without a type, as ADO does.
    void Append(const ParameterPtr& parameter);
    void Delete(long index);
    void Delete(QStringView name);

    auto begin() const { return m_items.begin(); }
    auto end() const { return m_items.end(); }

private:
    std::vector<ParameterPtr> m_items;
};

// ADO's Command: text with "?" markers and its Parameters, run on a connection, or on a
// connection string (the command then opens a connection of its own).
class Command {
public:
    Command() = default;

    ConnectionPtr ActiveConnection() const { return m_connection; }
    void setActiveConnection(const ConnectionPtr& connection);
    void setActiveConnection(const QString& connectionString);
    const QString& CommandText() const noexcept { return m_text; }
    void setCommandText(const QString& text) { m_text = text; }
    CommandTypeEnum CommandType() const noexcept { return m_type; }
    void setCommandType(CommandTypeEnum type) { m_type = type; }
    long CommandTimeout() const noexcept { return m_timeout; }
    void setCommandTimeout(long seconds) { m_timeout = seconds; }
    ado::Parameters& Parameters() noexcept { return m_parameters; }

    ParameterPtr CreateParameter(const QString& name = {},
                                 DataTypeEnum type = DataTypeEnum::adEmpty,
                                 ParameterDirectionEnum direction = ParameterDirectionEnum::adParamInput,
                                 long size = 0, const vb::Variant& value = {}) const;

    // `values`, when given, replace the values of the parameters in order for this run.
    RecordsetPtr Execute(long* recordsAffected = nullptr,
                         const std::vector<vb::Variant>* values = nullptr,
                         long options = adOptionUnspecified);

private:
    ConnectionPtr m_connection;
    QString m_text;
    CommandTypeEnum m_type = CommandTypeEnum::adCmdUnknown;
    long m_timeout = 30;
    ado::Parameters m_parameters;
};

} // namespace ado

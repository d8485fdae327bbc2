# The SQL Server provider: ODBC (unixODBC + FreeTDS here, Microsoft's driver on Windows).
set(_sqlserver ${CMAKE_CURRENT_LIST_DIR})
target_sources(platform PRIVATE
    ${_sqlserver}/odbc/SystemApi.cpp
    ${_sqlserver}/odbc/Diagnostics.cpp
    ${_sqlserver}/odbc/Handles.cpp
    ${_sqlserver}/odbc/Types.cpp
    ${_sqlserver}/odbc/Values.cpp
    ${_sqlserver}/odbc/Parameters.cpp
    ${_sqlserver}/odbc/Execution.cpp
    ${_sqlserver}/odbc/DriverString.cpp
    ${_sqlserver}/odbc/InstancePort.cpp
    ${_sqlserver}/odbc/SchemaQueries.cpp
    ${_sqlserver}/odbc/StaticRowsets.cpp)
# The provider itself stands on the ADO object model and registers under its names.
if(EXISTS ${_sqlserver}/../Provider.h AND EXISTS ${_sqlserver}/../sources.cmake)
    target_sources(platform PRIVATE
        ${_sqlserver}/AdoErrors.cpp
        ${_sqlserver}/ServerRowset.cpp
        ${_sqlserver}/RowWrites.cpp
        ${_sqlserver}/Session.cpp
        ${_sqlserver}/ServerCatalog.cpp
        ${_sqlserver}/SqlServerProvider.cpp)
    target_compile_definitions(platform PRIVATE UPSIZER_ADO_SQLSERVER)
endif()
find_package(Qt6 REQUIRED COMPONENTS Network)
target_link_libraries(platform PRIVATE ODBC::ODBC Qt6::Network)

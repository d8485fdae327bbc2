# The ADO and ADOX object model, its provider interface and registry, the recording provider for
# tests, and the Jet provider on platform/jetfile.
target_sources(platform PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/BuiltinProviders.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Command.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Compare.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Connection.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ConnectionString.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Error.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Errors.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Field.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Filter.cpp
    ${CMAKE_CURRENT_LIST_DIR}/MemoryRowset.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Properties.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ProviderRegistry.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Recordset.cpp
    ${CMAKE_CURRENT_LIST_DIR}/RowNavigator.cpp
    ${CMAKE_CURRENT_LIST_DIR}/SchemaRowsets.cpp
    ${CMAKE_CURRENT_LIST_DIR}/adox/Catalog.cpp
    ${CMAKE_CURRENT_LIST_DIR}/jet/JetErrors.cpp
    ${CMAKE_CURRENT_LIST_DIR}/jet/JetProvider.cpp
    ${CMAKE_CURRENT_LIST_DIR}/jet/JetRowsets.cpp
    ${CMAKE_CURRENT_LIST_DIR}/jet/JetSql.cpp
    ${CMAKE_CURRENT_LIST_DIR}/jet/JetTypes.cpp
    ${CMAKE_CURRENT_LIST_DIR}/adox/Objects.cpp
    ${CMAKE_CURRENT_LIST_DIR}/recording/Journal.cpp
    ${CMAKE_CURRENT_LIST_DIR}/recording/RecordingProvider.cpp
    ${CMAKE_CURRENT_LIST_DIR}/recording/Script.cpp)
# The Jet provider registers itself under "Microsoft.Jet.OLEDB.4.0".
target_compile_definitions(platform PRIVATE UPSIZER_ADO_JET)

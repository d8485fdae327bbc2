# Server discovery: the SQL Server Browser protocol (UDP 1434) on Qt Network, behind the
# SQL-DMO objects the window uses and the instance look-up of the SQL Server provider.
find_package(Qt6 REQUIRED COMPONENTS Network)
target_sources(platform PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/Error.cpp
    ${CMAKE_CURRENT_LIST_DIR}/BrowserMessage.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Browser.cpp
    ${CMAKE_CURRENT_LIST_DIR}/NameList.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Application.cpp
    ${CMAKE_CURRENT_LIST_DIR}/SQLServer2.cpp
    ${CMAKE_CURRENT_LIST_DIR}/InstancePort.cpp)
# Public: the objects' options hold QHostAddress values.
target_link_libraries(platform PUBLIC Qt6::Network)

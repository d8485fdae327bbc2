target_sources(platform PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/Error.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Schema.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Database.cpp
    ${CMAKE_CURRENT_LIST_DIR}/RowCursor.cpp
    ${CMAKE_CURRENT_LIST_DIR}/detail/Catalog.cpp
    ${CMAKE_CURRENT_LIST_DIR}/detail/DataPage.cpp
    ${CMAKE_CURRENT_LIST_DIR}/detail/LongValue.cpp
    ${CMAKE_CURRENT_LIST_DIR}/detail/PageSource.cpp
    ${CMAKE_CURRENT_LIST_DIR}/detail/PropertyParser.cpp
    ${CMAKE_CURRENT_LIST_DIR}/detail/Rc4.cpp
    ${CMAKE_CURRENT_LIST_DIR}/detail/RowView.cpp
    ${CMAKE_CURRENT_LIST_DIR}/detail/TableDefParser.cpp
    ${CMAKE_CURRENT_LIST_DIR}/detail/Text.cpp
    ${CMAKE_CURRENT_LIST_DIR}/detail/UsageMap.cpp
    ${CMAKE_CURRENT_LIST_DIR}/detail/Values.cpp)

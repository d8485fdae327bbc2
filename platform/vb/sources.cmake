target_sources(platform PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/Variant.cpp
    ${CMAKE_CURRENT_LIST_DIR}/VariantText.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Decimal.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Err.cpp)

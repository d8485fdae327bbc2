target_sources(platform PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/Base64.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Bstr.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Cipher.cpp
    ${CMAKE_CURRENT_LIST_DIR}/EncryptedData.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Error.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Message.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Utilities.cpp)
target_link_libraries(platform PRIVATE OpenSSL::Crypto)

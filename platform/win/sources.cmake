# What the system took from Windows itself: message boxes, the registry, profile files, the shell,
# the mouse pointer, file versions and attributes, and the ANSI code page.
target_sources(platform PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/Cp1252.cpp
    ${CMAKE_CURRENT_LIST_DIR}/MessageBox.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ScriptedMessageBox.cpp
    ${CMAKE_CURRENT_LIST_DIR}/QtMessageBox.cpp
    ${CMAKE_CURRENT_LIST_DIR}/WindowThreadMessageBox.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Registry.cpp
    ${CMAKE_CURRENT_LIST_DIR}/FileRegistry.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Profile.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Shell.cpp
    ${CMAKE_CURRENT_LIST_DIR}/MousePointer.cpp
    ${CMAKE_CURRENT_LIST_DIR}/FileVersion.cpp
    ${CMAKE_CURRENT_LIST_DIR}/FileSystem.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Forms.cpp)
if(WIN32)
    target_sources(platform PRIVATE ${CMAKE_CURRENT_LIST_DIR}/Win32Registry.cpp)
    target_link_libraries(platform PRIVATE version shell32)
endif()
target_link_libraries(platform PRIVATE Qt6::Widgets Qt6::Gui)

# The version block of the program's own file, where executables carry none.
if(NOT DEFINED UPSIZER_PRODUCT_NAME)
    set(UPSIZER_PRODUCT_NAME "Solvaria Upsizer")
endif()
set(_upsizer_tweak "${PROJECT_VERSION_TWEAK}")
if(_upsizer_tweak STREQUAL "")
    set(_upsizer_tweak 0)
endif()
set_source_files_properties(${CMAKE_CURRENT_LIST_DIR}/FileVersion.cpp PROPERTIES
    COMPILE_DEFINITIONS "UPSIZER_VERSION_MAJOR=${PROJECT_VERSION_MAJOR};UPSIZER_VERSION_MINOR=${PROJECT_VERSION_MINOR};UPSIZER_VERSION_PATCH=${PROJECT_VERSION_PATCH};UPSIZER_VERSION_TWEAK=${_upsizer_tweak};UPSIZER_PRODUCT_NAME=\"${UPSIZER_PRODUCT_NAME}\"")

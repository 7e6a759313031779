# Read by CPack before each package: which component it holds, and its name.

if(CPACK_GENERATOR STREQUAL "TGZ")
  string(REPLACE ";ALL;" ";folder;" CPACK_INSTALL_CMAKE_PROJECTS "${CPACK_INSTALL_CMAKE_PROJECTS}")
  set(CPACK_PACKAGE_FILE_NAME ${CPACK_PACKAGE_NAME}-${CPACK_PACKAGE_VERSION})
endif()

# Desktop integration on Linux: menu entry, application icon and the MIME
# type of project files (*.pwp), installed with `cmake --install`.
if(UNIX AND NOT APPLE)
  set(KAL_DESKTOP_DIR ${CMAKE_CURRENT_LIST_DIR}/../desktop)
  set(KAL_ICON_DIR ${CMAKE_CURRENT_LIST_DIR}/../icons)
  install(FILES ${KAL_DESKTOP_DIR}/pellwick.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES ${KAL_DESKTOP_DIR}/pellwick-mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
    RENAME pellwick.xml)
  if(EXISTS ${KAL_ICON_DIR}/pellwick.svg)
    install(FILES ${KAL_ICON_DIR}/pellwick.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
  endif()
  if(EXISTS ${KAL_ICON_DIR}/pellwick.png)
    install(FILES ${KAL_ICON_DIR}/pellwick.png DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/256x256/apps)
  endif()
  # Refresh the desktop databases when the tools exist; failures (e.g. a
  # staged install into DESTDIR) are harmless.
  install(CODE "
    if(NOT \"\$ENV{DESTDIR}\")
      find_program(KAL_UPDATE_MIME update-mime-database)
      find_program(KAL_UPDATE_DESKTOP update-desktop-database)
      if(KAL_UPDATE_MIME)
        execute_process(COMMAND \${KAL_UPDATE_MIME} \"\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_DATADIR}/mime\" OUTPUT_QUIET ERROR_QUIET)
      endif()
      if(KAL_UPDATE_DESKTOP)
        execute_process(COMMAND \${KAL_UPDATE_DESKTOP} \"\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_DATADIR}/applications\" OUTPUT_QUIET ERROR_QUIET)
      endif()
    endif()")
endif()

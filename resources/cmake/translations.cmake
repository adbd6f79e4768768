# Translations: our own kal_<locale>.ts compiled with lrelease, plus Qt's base
# translation from the system, both into Translations/ beside bin/.
set(KAL_TS_FILES)
foreach(locale en_GB en_US es)
  list(APPEND KAL_TS_FILES ${CMAKE_CURRENT_LIST_DIR}/../translations/kal_${locale}.ts)
endforeach()

set(KAL_QM_FILES)
foreach(ts ${KAL_TS_FILES})
  get_filename_component(name ${ts} NAME_WE)
  set(qm ${PELLWICK_TRANSLATIONS_DIR}/${name}.qm)
  add_custom_command(OUTPUT ${qm}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${PELLWICK_TRANSLATIONS_DIR}
    COMMAND Qt5::lrelease -silent ${ts} -qm ${qm}
    DEPENDS ${ts}
    COMMENT "Compiling translation ${name}"
    VERBATIM)
  list(APPEND KAL_QM_FILES ${qm})
endforeach()

# Debian ships Qt's own texts (standard buttons, file dialogs) in
# qttranslations5-l10n; the program loads them as qtBase_<locale>.qm.
find_path(KAL_QT_TRANSLATIONS_DIR qtbase_de.qm
  PATHS /usr/share/qt5/translations /usr/share/qt/translations NO_DEFAULT_PATH)
if(KAL_QT_TRANSLATIONS_DIR)
  foreach(lang de en es)
    set(src ${KAL_QT_TRANSLATIONS_DIR}/qtbase_${lang}.qm)
    if(EXISTS ${src})
      set(qm ${PELLWICK_TRANSLATIONS_DIR}/qtBase_${lang}.qm)
      add_custom_command(OUTPUT ${qm}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${PELLWICK_TRANSLATIONS_DIR}
        COMMAND ${CMAKE_COMMAND} -E copy ${src} ${qm}
        DEPENDS ${src}
        COMMENT "Copying Qt base translation ${lang}"
        VERBATIM)
      list(APPEND KAL_QM_FILES ${qm})
    endif()
  endforeach()
else()
  message(WARNING "Qt base translations (qttranslations5-l10n) not found; Qt's own texts stay untranslated")
endif()

add_custom_target(kal_translations ALL DEPENDS ${KAL_QM_FILES})
if(TARGET pellwick)
  add_dependencies(pellwick kal_translations)
endif()
install(FILES ${KAL_QM_FILES} DESTINATION Translations)

# Refreshes the .ts files from the sources: cmake --build <dir> --target kal_lupdate
add_custom_target(kal_lupdate
  COMMAND Qt5::lupdate -no-obsolete -locations none ${CMAKE_SOURCE_DIR}/src -ts ${KAL_TS_FILES}
  WORKING_DIRECTORY ${CMAKE_SOURCE_DIR}
  COMMENT "Updating translation sources"
  VERBATIM)

# Spelling dictionaries: the system's Hunspell dictionaries are copied beside
# bin/ under the names the program looks for (Dictionaries/pym_<code>.DIC/.AFF).
set(KAL_HUNSPELL_SEARCH_DIRS /usr/share/hunspell /usr/share/myspell/dicts /usr/share/myspell)
set(KAL_DICTIONARY_MAP "DE=de_DE" "ES=es_ES" "EN=en_GB" "USA=en_US")

set(KAL_DICTIONARY_OUTPUTS)
foreach(entry ${KAL_DICTIONARY_MAP})
  string(REPLACE "=" ";" pair ${entry})
  list(GET pair 0 code)
  list(GET pair 1 system_name)
  unset(kal_aff CACHE)
  unset(kal_dic CACHE)
  find_file(kal_aff NAMES ${system_name}.aff PATHS ${KAL_HUNSPELL_SEARCH_DIRS} NO_DEFAULT_PATH)
  find_file(kal_dic NAMES ${system_name}.dic PATHS ${KAL_HUNSPELL_SEARCH_DIRS} NO_DEFAULT_PATH)
  if(NOT kal_aff OR NOT kal_dic)
    message(WARNING "Hunspell dictionary ${system_name} not found; pym_${code} will be missing")
    continue()
  endif()
  # Resolve symbolic links so the copy holds the real file.
  get_filename_component(kal_aff_real ${kal_aff} REALPATH)
  get_filename_component(kal_dic_real ${kal_dic} REALPATH)
  set(out_aff ${PELLWICK_DICTIONARIES_DIR}/pym_${code}.AFF)
  set(out_dic ${PELLWICK_DICTIONARIES_DIR}/pym_${code}.DIC)
  add_custom_command(OUTPUT ${out_aff} ${out_dic}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${PELLWICK_DICTIONARIES_DIR}
    COMMAND ${CMAKE_COMMAND} -E copy ${kal_aff_real} ${out_aff}
    COMMAND ${CMAKE_COMMAND} -E copy ${kal_dic_real} ${out_dic}
    DEPENDS ${kal_aff_real} ${kal_dic_real}
    COMMENT "Copying dictionary ${system_name} as pym_${code}"
    VERBATIM)
  list(APPEND KAL_DICTIONARY_OUTPUTS ${out_aff} ${out_dic})
  install(FILES ${out_aff} ${out_dic} DESTINATION Dictionaries)
endforeach()
unset(kal_aff CACHE)
unset(kal_dic CACHE)

add_custom_target(kal_dictionaries ALL DEPENDS ${KAL_DICTIONARY_OUTPUTS})

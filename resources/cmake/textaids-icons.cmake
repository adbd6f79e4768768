# Icons used only by the text input aids (completer and date fields).
target_sources(kal_gui PRIVATE ${CMAKE_CURRENT_LIST_DIR}/../icons/textaids/textaids.qrc)

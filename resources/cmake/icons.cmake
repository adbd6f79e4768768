# Our own icons (drawn as SVG in resources/icons/svg, rendered by
# resources/icons/render.sh), compiled into the GUI library. kal_gui is
# static: the program and the widget tests call kalInitGuiResources().
target_sources(kal_gui PRIVATE ${CMAKE_CURRENT_LIST_DIR}/../icons/icons.qrc)

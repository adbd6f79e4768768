# Benchmarks that need widgets (bench/gui_bench_*.cpp) link the GUI library;
# bench/CMakeLists.txt builds the headless ones.
if(PELLWICK_BENCH)
  file(GLOB KAL_GUI_BENCH_SOURCES CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/bench/gui_bench_*.cpp)
  foreach(src ${KAL_GUI_BENCH_SOURCES})
    get_filename_component(name ${src} NAME_WE)
    add_executable(${name} ${src})
    target_link_libraries(${name} PRIVATE kal_gui kal_core)
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bench)
  endforeach()
endif()

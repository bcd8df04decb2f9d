# What every target of ours is built with; libraries' headers stay out of it.
add_library(mendori_build INTERFACE)
target_include_directories(mendori_build INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_options(mendori_build INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                                               -Woverloaded-virtual)
target_compile_definitions(mendori_build INTERFACE QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS)
if(MENDORI_STRICT)
  target_compile_options(mendori_build INTERFACE -Werror)
endif()
if(MENDORI_SANITIZE)
  target_compile_options(mendori_build INTERFACE -fsanitize=address,undefined -fno-omit-frame-pointer
                                                 -fno-sanitize-recover=undefined)
  target_link_options(mendori_build INTERFACE -fsanitize=address,undefined)
endif()

# The libraries' headers cost more time than our own code: read once, for every room.
set(mendori_headers <QApplication> <QDir> <QFileInfo> <QHash> <QKeyEvent> <QLabel> <QMessageBox> <QMouseEvent> <QPainter>
                    <QPointer> <QRegularExpression> <QSaveFile> <QStringList> <QTimer> <QWidget> <algorithm> <array>
                    <functional> <memory> <optional> <span> <string> <utility> <vector>)

# mendori_room(platform/storage SOURCES database.cpp … LINKS what-lies-below…): one library of a room's sources,
# named room_platform_storage.
function(mendori_room room)
  cmake_parse_arguments(PARSE_ARGV 1 room "" "" "SOURCES;LINKS")
  string(REPLACE "/" "_" target room_${room})
  add_library(${target} STATIC ${room_SOURCES})
  target_link_libraries(${target} PUBLIC mendori_build Qt6::Widgets ${room_LINKS})
  if(room STREQUAL "platform")
    target_precompile_headers(${target} PRIVATE ${mendori_headers})
  else()
    target_precompile_headers(${target} REUSE_FROM room_platform)
  endif()
endfunction()

# mendori_module(name source libraries...): a library that a program loads at first use, beside the program.
function(mendori_module name source)
  add_library(${name} MODULE ${source})
  set_target_properties(${name} PROPERTIES PREFIX "" AUTOMOC OFF CXX_VISIBILITY_PRESET hidden
                                           LIBRARY_OUTPUT_DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
  target_link_libraries(${name} PRIVATE mendori_build ${ARGN})
endfunction()

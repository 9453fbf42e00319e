# Puts the page together, as one file without any other: cmake -D OUT=FOLDER -P Bundle.cmake
# Writes FOLDER/preview.html, the page without a packet, and FOLDER/PreviewPage.inc, the same as literals for
# C++: ZEL_BEFORE_PACKET, ZEL_BEFORE_REPORT from the packet's place on, and ZEL_AFTER_REPORT.
cmake_minimum_required(VERSION 3.22)

# Each module imports only from those before it, so that all of them become one script.
set(modules
    labels times rich-text packet intervals problems search files media
    dom virtual-list item-list caption-view seek-bar timeline pictures
    search-view problem-view detail-view tabs shortcuts main)

# Reads a file with line feeds only: the hashes are those of what the browser sees.
function(read_source variable file)
    file(READ ${CMAKE_CURRENT_LIST_DIR}/${file} text)
    string(REPLACE "\r\n" "\n" text "${text}")
    set(${variable} "${text}" PARENT_SCOPE)
endfunction()

# The SHA-256 of the text in base64: three hexadecimal digits are two characters.
function(base64_sha256 variable text)
    set(alphabet ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/)
    string(SHA256 digest "${text}")
    set(encoded)
    # 32 bytes are 21 groups of 3 digits, and 1 digit that 2 zero bits fill up.
    foreach(begin RANGE 0 63 3)
        string(SUBSTRING ${digest}00 ${begin} 3 group)
        math(EXPR high "0x${group} >> 6")
        math(EXPR low "0x${group} & 63")
        foreach(index IN ITEMS ${high} ${low})
            string(SUBSTRING ${alphabet} ${index} 1 character)
            string(APPEND encoded ${character})
        endforeach()
    endforeach()
    string(SUBSTRING ${encoded} 0 43 encoded)
    set(${variable} "${encoded}=" PARENT_SCOPE)
endfunction()

set(script)
foreach(module IN LISTS modules)
    read_source(text modules/${module}.js)
    string(REGEX REPLACE "\nimport [^;]*;" "" text "\n${text}")
    string(REPLACE "\nexport " "\n" text "${text}")
    string(APPEND script "${text}")
endforeach()
read_source(style style.css)
read_source(page index.html)

if(script MATCHES "</script|<!--" OR style MATCHES "</style")
    message(FATAL_ERROR "The script or the style would end its element")
endif()
base64_sha256(script_hash "${script}")
base64_sha256(style_hash "${style}")
set(policy "default-src 'none'; script-src 'sha256-${script_hash}'; style-src 'sha256-${style_hash}'; \
img-src file: blob:; media-src file: blob:; base-uri 'none'; form-action 'none'")
string(REPLACE "@POLICY@" "${policy}" page "${page}")
string(REPLACE "@STYLE@" "${style}" page "${page}")
string(REPLACE "@SCRIPT@" "${script}" page "${page}")
# Compilers differ in how they read other characters in a literal.
if(page MATCHES "[^ -~\n]")
    message(FATAL_ERROR "The page has a character that is not ASCII: ${CMAKE_MATCH_0}")
endif()

# Compilers limit the length of a literal, so each part has several.
function(append_literals macro text)
    string(APPEND literals "#define ${macro} \\\n")
    string(LENGTH "${text}" length)
    foreach(begin RANGE 0 ${length} 8000)
        string(SUBSTRING "${text}" ${begin} 8000 part)
        string(REGEX REPLACE "([\"\\\\])" "\\\\\\1" part "${part}")
        string(REPLACE "\n" "\\n" part "${part}")
        string(APPEND literals "    \"${part}\", \\\n")
    endforeach()
    set(literals "${literals}\n" PARENT_SCOPE)
endfunction()

if(NOT page MATCHES "^(.*)@PACKET@(.*)@REPORT@(.*)$")
    message(FATAL_ERROR "The page has no place for a packet and a report")
endif()
set(before_packet "${CMAKE_MATCH_1}")
set(before_report "${CMAKE_MATCH_2}")
set(after_report "${CMAKE_MATCH_3}")
set(literals)
append_literals(ZEL_BEFORE_PACKET "${before_packet}")
append_literals(ZEL_BEFORE_REPORT "${before_report}")
append_literals(ZEL_AFTER_REPORT "${after_report}")
file(WRITE ${OUT}/PreviewPage.inc "${literals}")
file(WRITE ${OUT}/preview.html "${before_packet}${before_report}${after_report}")

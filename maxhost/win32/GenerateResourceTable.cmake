# cmake -DFILES=SCRIPT;FILE... -DOUTPUT=SOURCE.cpp -P GenerateResourceTable.cmake
# Writes the C++ source of a module's resource table; see zk_embed_resources.
set(arrays "")
set(rows "")
set(number 0)
foreach(file IN LISTS FILES)
    get_filename_component(name ${file} NAME)
    file(SIZE ${file} size)
    file(READ ${file} hex HEX)
    string(REGEX REPLACE "(................................)" "\\1\n    " hex "${hex}")
    string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1, " bytes "${hex}")
    # A closing zero keeps the array of an empty file legal; the stated size does not count it.
    string(APPEND arrays "const unsigned char kFile${number}[] = {\n    ${bytes}0};\n")
    string(APPEND rows "    {\"${name}\", kFile${number}, ${size}},\n")
    math(EXPR number "${number} + 1")
endforeach()
file(WRITE ${OUTPUT}
"#include \"maxhost/win32/ResourceTable.h\"

namespace {

${arrays}
const Win32EmbeddedFile kFiles[] = {
${rows}};

}  // namespace

const Win32ResourceTable Win32Resources = {kFiles, ${number}};
")

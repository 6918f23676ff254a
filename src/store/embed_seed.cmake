# cmake -DINPUT=file -DOUTPUT=file.cpp -DSYMBOL=name -P embed_seed.cmake
# Writes the bytes of INPUT as a C++ array. A byte array rather than a string
# literal, because some compilers cap the length of a literal well below the
# size of a seed file.
file(READ "${INPUT}" hex HEX)
string(LENGTH "${hex}" hex_length)
math(EXPR size "${hex_length} / 2")
string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${hex}")
string(REPEAT "0x[0-9a-f][0-9a-f]," 16 sixteen_bytes)
string(REGEX REPLACE "(${sixteen_bytes})" "\\1\n" bytes "${bytes}")
get_filename_component(name "${INPUT}" NAME)
file(WRITE "${OUTPUT}.part"
  "// Generated from data/${name} by src/store/embed_seed.cmake; do not edit.\n"
  "#include <cstddef>\n\n"
  "namespace kelvaro::store::seed {\n\n"
  "// A zero byte follows the data so that an empty file still makes an array.\n"
  "extern const unsigned char ${SYMBOL}[] = {\n${bytes}0x00};\n"
  "extern const std::size_t ${SYMBOL}_size = ${size};\n\n"
  "}  // namespace kelvaro::store::seed\n")
file(RENAME "${OUTPUT}.part" "${OUTPUT}")

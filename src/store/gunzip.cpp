#include "store/gunzip.h"

#include <zlib.h>

#include <climits>

#include "store/store_error.h"

namespace kelvaro::store {

std::string Gunzip(std::string_view compressed, const std::string& source) {
  if (compressed.size() > UINT_MAX) throw StoreError(source + " is too large to inflate");
  z_stream stream{};
  // 16 + the largest window: a gzip header and trailer around deflate data.
  if (inflateInit2(&stream, 16 + MAX_WBITS) != Z_OK) throw StoreError("cannot inflate " + source);
  stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(compressed.data()));
  stream.avail_in = static_cast<uInt>(compressed.size());
  std::string out;
  char buffer[1 << 16];
  int status = Z_OK;
  while (status == Z_OK) {
    stream.next_out = reinterpret_cast<Bytef*>(buffer);
    stream.avail_out = sizeof buffer;
    status = inflate(&stream, Z_NO_FLUSH);
    if (status == Z_OK || status == Z_STREAM_END) out.append(buffer, sizeof buffer - stream.avail_out);
    if (status == Z_BUF_ERROR && stream.avail_in == 0) break;  // the data ends before the stream does
  }
  inflateEnd(&stream);
  if (status != Z_STREAM_END) throw StoreError(source + " is damaged: its compressed data does not end whole");
  return out;
}

}  // namespace kelvaro::store

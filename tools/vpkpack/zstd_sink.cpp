// The compressed stream of a tar.zst package.
//
// libarchive's own zstd filter writes its frame without a content checksum,
// and tar keeps none of its entries' data either, so a byte damaged in
// transit would decompress into a corrupted file that the launcher installs
// without noticing. Compressing here lets the frame carry zstd's checksum;
// libarchive's reader verifies it, and the launcher rolls back instead.
#include <archive.h>
#include <cerrno>
#include <unistd.h>
#include <zstd.h>

#include "vpkpack_p.h"

namespace vpkpack {

ZstdSink::~ZstdSink()
{
    ZSTD_freeCCtx(cctx_);
}

// Even one thread runs as a worker of zstd's multi-threaded mode: that mode
// cuts the input into jobs of a size set by the level alone, so its frame
// is the same whatever the number of workers, while the single-threaded
// mode would write another.
bool ZstdSink::Open(archive* a, int fd, int level, int threads)
{
    fd_ = fd;
    cctx_ = ZSTD_createCCtx();
    out_.resize(ZSTD_CStreamOutSize());
    if (cctx_ == nullptr || ZSTD_isError(ZSTD_CCtx_setParameter(cctx_, ZSTD_c_compressionLevel, level)) ||
        ZSTD_isError(ZSTD_CCtx_setParameter(cctx_, ZSTD_c_checksumFlag, 1)) ||
        ZSTD_isError(ZSTD_CCtx_setParameter(cctx_, ZSTD_c_nbWorkers, threads < 1 ? 1 : threads))) {
        archive_set_error(a, ENOMEM, "cannot set up the zstd compressor");
        return false;
    }
    return archive_write_open(a, this, nullptr, &ZstdSink::WriteCallback, &ZstdSink::CloseCallback) ==
           ARCHIVE_OK;
}

// Compresses in, or with end set finishes the frame, writing every output
// block to the file. False with the archive's error set on failure.
bool ZstdSink::Compress(archive* a, const void* data, size_t size, bool end)
{
    ZSTD_inBuffer in{data, size, 0};
    size_t left = 0;
    do {
        ZSTD_outBuffer out{out_.data(), out_.size(), 0};
        left = ZSTD_compressStream2(cctx_, &out, &in, end ? ZSTD_e_end : ZSTD_e_continue);
        if (ZSTD_isError(left)) {
            archive_set_error(a, EIO, "zstd compression failed: %s", ZSTD_getErrorName(left));
            return false;
        }
        const char* next = out_.data();
        while (out.pos > 0) {
            const ssize_t n = write(fd_, next, out.pos);
            if (n < 0 && errno == EINTR) {
                continue;
            }
            if (n <= 0) {
                write_error_ = n < 0 ? errno : EIO;
                archive_set_error(a, write_error_, "cannot write the package");
                return false;
            }
            next += n;
            out.pos -= static_cast<size_t>(n);
        }
    } while (end ? left != 0 : in.pos < in.size);
    return true;
}

ssize_t ZstdSink::WriteCallback(archive* a, void* self, const void* buffer, size_t size)
{
    return static_cast<ZstdSink*>(self)->Compress(a, buffer, size, false) ? static_cast<ssize_t>(size) : -1;
}

int ZstdSink::CloseCallback(archive* a, void* self)
{
    return static_cast<ZstdSink*>(self)->Compress(a, nullptr, 0, true) ? ARCHIVE_OK : ARCHIVE_FATAL;
}

} // namespace vpkpack

// Any bytes as a layer file, and saved layers with any bytes of theirs spoilt: no crash, no more memory than
// a few times the file's size whatever it claims to hold, and what was read comes back from what is written
// of it.
#include "../fuzz/Feed.h"
#include "rules/LayerFile.h"

#include <algorithm>

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;

extern "C" {
int __sanitizer_install_malloc_and_free_hooks(void (*)(const volatile void *, size_t),
                                              void (*)(const volatile void *));
size_t __sanitizer_get_allocated_size(const volatile void *);
}

namespace {

const QString kPages[] = {QStringLiteral("windows-1250"), QString(), QStringLiteral("windows-1258")};
// A group of four bytes takes 32 in memory, which is the worst there is; what decoders need is beside it.
constexpr int64_t kTimes = 9, kBeside = 8 * 1024;

struct Heap {
    int64_t live = 0, peak = 0;
    bool counts = false;
} heap;
void took(const volatile void *, size_t n)
{
    if (heap.counts) heap.peak = std::max(heap.peak, heap.live += int64_t(n));
}
void gave(const volatile void *p)
{
    if (heap.counts && p) heap.live -= int64_t(__sanitizer_get_allocated_size(p));
}

QByteArray savedFrom(tests::Feed &feed)
{
    LayerFile file{feed.take<int32_t>(), {}, {}, {}};
    for (int n = feed.take<uint8_t>() % 8; n > 0; --n)
        file.layers.push_back({.LayId = feed.take<int16_t>(), .gNr = feed.take<int16_t>(),
                               .Name = feed.text(20), .Visible = n % 2 == 0});
    for (int n = feed.take<uint8_t>() % 4; n > 0; --n)
        file.groups.push_back({feed.take<int16_t>(), feed.text(20)});
    for (int n = feed.take<uint8_t>() % 8; n > 0; --n)
        file.members.push_back({feed.take<int16_t>(), feed.take<int16_t>()});
    const auto bytes = bytesOf(file, QString());
    return std::holds_alternative<QByteArray>(bytes) ? std::get<QByteArray>(bytes) : QByteArray();
}

void spoil(QByteArray &bytes, tests::Feed &feed)
{
    for (int n = feed.take<uint8_t>() % 4; n > 0 && !bytes.isEmpty(); --n)
        bytes[feed.take<uint16_t>() % bytes.size()] = feed.take<char>();
    if (feed.take<uint8_t>() % 4 == 0) bytes.truncate(feed.take<uint16_t>());
    if (feed.take<uint8_t>() % 8 == 0) bytes += feed.take<char>();
}

void check(const QByteArray &bytes, const QString &page)
{
    heap = {.counts = true};
    const auto read = layerFileOf(bytes, page);
    heap.counts = false;
    PROMISE(heap.peak <= kTimes * bytes.size() + kBeside);
    if (!std::holds_alternative<LayerFile>(read)) return;
    const LayerFile &file = std::get<LayerFile>(read);
    PROMISE(layerFileVersionOf(bytes) == file.version);
    const auto written = bytesOf(file, page);
    if (const auto *const refusal = std::get_if<LayerFileRefusal>(&written)) {
        PROMISE(refusal->why == LayerFileRefusal::Why::LetterLacking // bytes without a letter read as U+FFFD
                || refusal->why == LayerFileRefusal::Why::NameTooLong); // which may take more bytes
        return;
    }
    PROMISE(std::get<LayerFile>(layerFileOf(std::get<QByteArray>(written), page)) == file);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    for (const QString &page : kPages) layerFileOf(QByteArray(), page); // loads what a code page needs
    return __sanitizer_install_malloc_and_free_hooks(took, gave) == 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    tests::Feed feed(data, size);
    const auto kind = feed.take<uint8_t>();
    QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    if (kind % 2 == 0) bytes.remove(0, 1);
    else spoil(bytes = savedFrom(feed), feed);
    check(bytes, kPages[(kind >> 1) % std::size(kPages)]);
    return 0;
}

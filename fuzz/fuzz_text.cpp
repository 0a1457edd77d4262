// The text folding and the natural order the filters and sorted columns compare by. The order
// must be a strict weak order, or sorting and interval filters misbehave: irreflexive,
// asymmetric, transitive, with transitive incomparability. Checked on triples of texts.
#include "FuzzSupport.h"
#include "tables/NaturalTextOrder.h"
#include "tables/UnicodeStripped.h"

using namespace Orvo::UI::UIComponents;

namespace {

bool PrintableAscii(const QString& text)
{
    for (const QChar c : text) {
        if (c.unicode() < 0x20 || c.unicode() > 0x7e)
            return false;
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    Fuzz::EnsureApplication(false);
    FuzzedDataProvider data(bytes, size);
    const bool folded = data.ConsumeBool();
    std::wstring texts[3];
    for (std::wstring& text : texts) {
        const QString raw = Fuzz::Text(data, 512);
        const QString stripped = UnicodeStripped(raw);
        if (PrintableAscii(raw))
            FUZZ_CHECK(stripped == raw);
        text = (folded ? stripped : raw).toStdWString();
    }

    const auto before
        = [](const std::wstring& a, const std::wstring& b) { return NaturalTextOrder::Before(a, b); };
    const auto equivalent
        = [&](const std::wstring& a, const std::wstring& b) { return !before(a, b) && !before(b, a); };
    const std::wstring& a = texts[0];
    const std::wstring& b = texts[1];
    const std::wstring& c = texts[2];
    FUZZ_CHECK(!before(a, a));
    FUZZ_CHECK(!(before(a, b) && before(b, a)));
    if (before(a, b) && before(b, c))
        FUZZ_CHECK(before(a, c));
    if (equivalent(a, b) && equivalent(b, c))
        FUZZ_CHECK(equivalent(a, c));
    // Mixed: a before b and b equivalent to c puts a before c.
    if (before(a, b) && equivalent(b, c))
        FUZZ_CHECK(before(a, c));
    return 0;
}

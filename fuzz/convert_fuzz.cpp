// A recording, changed as one: read, and converted in all targets.

#include "RecordingMutator.h"
#include "fuzzing.h"

#include <algorithm>

using namespace inkmacro;

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t most);

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t most, unsigned seed)
{
    constexpr unsigned bytesOneIn = 64;
    if (size == 0 || seed % bytesOneIn == 0)
        return LLVMFuzzerMutate(data, size, most);
    RecordingMutator mutator(std::string(reinterpret_cast<const char*>(data), size), seed);
    const std::string& changed = mutator.mutated(most);
    std::copy(changed.begin(), changed.end(), data);
    return changed.size();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Recording recording;
    if (readBytes(QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)), recording))
        return 0;
    for (const TargetRow& target : targetTable) {
        constexpr std::uint32_t replay = 1; // says more than any other mode
        convertRecording(recording, target, replay);
    }
    return 0;
}

// A computation that has run once allocates nothing when it runs again.
#include "model/computations.h"
#include "support.h"

#include <cstdlib>
#include <new>

namespace {
int allocations = 0;
}

// Counts the allocations of the whole test program.
void* operator new(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept { std::free(memory); }

namespace tav {
namespace {

TEST(Allocation, ASecondComputationAllocatesNothing) {
    for (SimulationRecord r : {Fed(LactatingCow()), Fed(DryCow()), Fed(Heifer()), Fed(Calf())}) {
        RunComputations(r);
        const int before = allocations;
        RunComputations(r);
        EXPECT_EQ(before, allocations) << r.AnimalType;
    }
    EXPECT_GT(allocations, 0);  // the count does count
}

}  // namespace
}  // namespace tav

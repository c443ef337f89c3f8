#include <qdamemory/internal/PlainNull.h>

#include <memory>

namespace NZRVQDA20 {

const std::vector<TCIMValue>* MakePlainNulls() {
  typedef TCIMValue::TCIMType TType;
  std::unique_ptr<std::vector<TCIMValue> > nulls(new std::vector<TCIMValue>());
  nulls->reserve(2 * kNullTypes);
  for (const int flag : {0, static_cast<int>(TType::kCIMTypeArrayFlag)}) {
    for (std::size_t type = 0; type < kNullTypes; ++type) {
      nulls->push_back(TCIMValue(static_cast<TType::ECIMType>(static_cast<int>(type) | flag), 0));
    }
  }
  return nulls.release();
}

}  // namespace NZRVQDA20

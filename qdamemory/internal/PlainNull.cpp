#include <qdamemory/internal/PlainNull.h>

#include <vector>

namespace NZRVQDA20 {

const TCIMValue* MakePlainNulls() {
  typedef TCIMValue::TCIMType TType;
  std::vector<TCIMValue>* const nulls = new std::vector<TCIMValue>();
  nulls->reserve(2 * kNullTypes);
  for (const int flag : {0, static_cast<int>(TType::kCIMTypeArrayFlag)}) {
    for (std::size_t type = 0; type < kNullTypes; ++type) {
      nulls->push_back(TCIMValue(static_cast<TType::ECIMType>(static_cast<int>(type) | flag), 0));
    }
  }
  return nulls->data();
}

}  // namespace NZRVQDA20

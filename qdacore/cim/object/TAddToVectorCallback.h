// TAddToVectorCallback: the collector for the enumerations of the CIM object interfaces.
//
//   std::vector<boost::shared_ptr<ICIMInstance> > found;
//   boost::function<bool(boost::shared_ptr<ICIMInstance>)> collect =
//       TAddToVectorCallback<ICIMInstance>(&found);
//   cls->EnumerateInstances(collect, true, context);

#ifndef QDACORE_CIM_OBJECT_TADDTOVECTORCALLBACK_H
#define QDACORE_CIM_OBJECT_TADDTOVECTORCALLBACK_H

#include <vector>

#include <boost/shared_ptr.hpp>

namespace NZRVQDA20 {

template <class T>
class TAddToVectorCallback {
 public:
  // `target` belongs to the caller and must outlive the enumeration.
  TAddToVectorCallback(std::vector<boost::shared_ptr<T> >* target) : fTarget(target) {}

  // Appends and goes on.
  bool operator()(boost::shared_ptr<T> element) {
    fTarget->push_back(element);
    return true;
  }

 private:
  std::vector<boost::shared_ptr<T> >* fTarget;
};

}  // namespace NZRVQDA20

#endif

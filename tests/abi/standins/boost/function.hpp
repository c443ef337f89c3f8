#pragma once
namespace boost {
template <class F> struct function { void* target; };
}

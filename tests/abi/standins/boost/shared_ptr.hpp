#pragma once
namespace boost {
template <class T> struct shared_ptr { shared_ptr(); shared_ptr(const shared_ptr&); ~shared_ptr(); T* px; void* pn; };
}

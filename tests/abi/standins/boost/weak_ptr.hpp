#pragma once
namespace boost {
template <class T> struct weak_ptr { weak_ptr(); weak_ptr(const weak_ptr&); ~weak_ptr(); T* px; void* pn; };
}

// Making objects from their class names.
#include "core/ObjectFactory.h"

#include <cstring>

#include "CcList.h"

namespace kest {

int MakeObject(const char* className, CcHLObject*& made) {
    made = nullptr;
    for (const ListedClass& listed : ClassList()) {
        if (std::strcmp(listed.name, className) != 0) continue;
        made = listed.make();
        return made ? KEST_OK : KEST_NO_MEMORY;
    }
    return KEST_FAILED;
}

void DeleteMade(CcHLObject* object) {
    // Only the library's classes can be met here, so the type code tells a list.
    if (object && object->GetType() == KEST_TYPE_LIST) {
        auto& list = *static_cast<CcList*>(object);
        while (list.GetNumberOfObjects() > 0) DeleteMade(list.TakeOut(list.GetNumberOfObjects() - 1));
    }
    delete object;
}

}  // namespace kest

// See MemberList.h.
#include "support/MemberList.h"

#include <fstream>

#include "frame/ClassDescription.h"
#include "frame/PublicClasses.h"

namespace qorltst::automation::test {

bool WriteMemberList(const std::string& path) {
  std::ofstream file(path, std::ios::binary);
  for (const ClassDescription* const description : PublicClasses()) {
    if (description->create == nullptr) {
      continue;
    }
    file << std::string(description->name.begin(), description->name.end());
    for (const Member& row : description->members) {
      if (!row.name.starts_with(u'_')) {
        file << ' ' << std::string(row.name.begin(), row.name.end());
      }
    }
    file << "\r\n";
  }
  return file.flush().good();
}

}  // namespace qorltst::automation::test

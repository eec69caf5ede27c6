// The list's records, and the rule on copies.
#include "XpLib/XpTableManSmTableGroup.h"

namespace Kestrel::xpTableManSm {

TableList::~TableList() {
  for (xpTblCtxPerIdx* const record : records_) delete record;
}

xpTblCtxPerIdx& TableList::append() {
  records_.reserve(words_.size());  // ahead of the record, which nobody would free
  return *records_.emplace_back(new xpTblCtxPerIdx{});
}

void TableList::placeIs(xpTblCtxPerIdx& record, U32 place) {
  record.tblIdx = static_cast<U8>(place);
  record.tblCtx = &words_[place];
}

U32 agreedCopyNum(U32 tblCopyNum, U32 perTableCopyNum, Operation const& in, int line) {
  moxAssert(perTableCopyNum <= 2, "perTableCopyNum <= 2", in, line);
  moxAssert(tblCopyNum == 0 || tblCopyNum == perTableCopyNum, "tblCopyNum == perTableCopyNum", in,
            line);
  return perTableCopyNum;
}

}  // namespace Kestrel::xpTableManSm

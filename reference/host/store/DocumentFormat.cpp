// SPDX-License-Identifier: Apache-2.0
// The schema of documents, embedded when the host is built.
#include "host/store/DocumentFormat.h"

namespace vex::store {

const system::Schema& DocumentSchema()
{
    static const char kText[] =
#include "host/store/schema.sql.inc"
        ;
    static const system::Schema schema(kText, kApplicationId);
    return schema;
}

}  // namespace vex::store

#pragma once

namespace tb::test {}

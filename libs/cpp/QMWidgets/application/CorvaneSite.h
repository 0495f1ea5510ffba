#pragma once

// The maker's fixed addresses: web host, store host, contact mail and domain;
// each program's store id comes with its build. Every link of the frame is built from these.
namespace QMWidgets::CorvaneSite {

inline constexpr char webHost[] = "https://www.corvane.com";
inline constexpr char storeHost[] = "https://apps.apple.com";
inline constexpr char contactAddress[] = "support@corvane.com";
inline constexpr char domain[] = "corvane.com";
inline constexpr char qtWebSite[] = "https://www.qt.io";

} // namespace QMWidgets::CorvaneSite

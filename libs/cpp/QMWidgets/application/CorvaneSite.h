#pragma once

// The maker's fixed addresses: web host, store host, contact mail, domain and
// the store id of this product. Every link of the frame is built from these.
namespace QMWidgets::CorvaneSite {

inline constexpr char webHost[] = "https://www.corvane.com";
inline constexpr char storeHost[] = "https://apps.apple.com";
inline constexpr char contactAddress[] = "support@corvane.com";
inline constexpr char domain[] = "corvane.com";
inline constexpr char guitarTonariumStoreId[] = "id918273645";
inline constexpr char qtWebSite[] = "https://www.qt.io";

} // namespace QMWidgets::CorvaneSite

// Keeps the servers of the program into which it is preloaded on this machine.
//
// Qt's VNC platform has no password and no option for the address: it listens on every interface, and
// whoever reaches its port sees the clerk's window and can type in it. Here a bind to "any address" becomes
// one to the loopback address; every other bind passes unchanged.

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstring>

namespace {

int bindDuNoyau(int prise, const void *adresse, socklen_t taille)
{
    return static_cast<int>(syscall(SYS_bind, prise, adresse, taille));
}

} // namespace

extern "C" int bind(int prise, const sockaddr *adresse, socklen_t taille) noexcept
{
    if (adresse && taille >= sizeof(sockaddr_in) && adresse->sa_family == AF_INET) {
        sockaddr_in ipv4;
        std::memcpy(&ipv4, adresse, sizeof ipv4);
        if (ipv4.sin_addr.s_addr == htonl(INADDR_ANY)) {
            ipv4.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
            return bindDuNoyau(prise, &ipv4, sizeof ipv4);
        }
    }
    if (adresse && taille >= sizeof(sockaddr_in6) && adresse->sa_family == AF_INET6) {
        sockaddr_in6 ipv6;
        std::memcpy(&ipv6, adresse, sizeof ipv6);
        if (IN6_IS_ADDR_UNSPECIFIED(&ipv6.sin6_addr)) {
            // Qt's socket serves both families, and viewers are told 127.0.0.1: that address in IPv6 form.
            inet_pton(AF_INET6, "::ffff:127.0.0.1", &ipv6.sin6_addr);
            return bindDuNoyau(prise, &ipv6, sizeof ipv6);
        }
    }
    return bindDuNoyau(prise, adresse, taille);
}

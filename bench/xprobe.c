/* xprobe - starts one X client, watches what reaches the screen, and touches it.
 *
 *   xprobe [--ignore X,Y,W,H] [--quiet MS] -- COMMAND [ARGUMENT...]
 *
 * Answers are lines of JSON on stdout. The first comes when the client has drawn nothing for MS (3000):
 *
 *   {"pid":P,"first":MS,"complete":MS,"frames":N}
 *
 * in ms since the instant before fork(): the first damage, and the first picture of the screen that is the
 * settled one already; the --ignore rectangle, where a status may come and go, is left out of the comparison.
 * Then it obeys lines on stdin:
 *
 *   damage         {"events":N}   damage events since the last such line
 *   press X,Y      {"first":MS}   puts the finger down; ms to the first damage, -1 if there was none
 *   release X,Y    {}             moves the finger to X,Y and lifts it
 *   key NAME       {"first":MS}   presses and releases a key
 *   click X,Y      {"first":MS}   touches, and waits until that has been drawn
 *   tap X,Y R      {"picture":H}  touches, waits until the screen is quiet; hash of rectangle R (X,Y,W,H)
 *   tap X,Y R H    {"ms":MS}      touches, waits until R looks like H; -1 when that does not happen
 *   shot FILE      {}             the screen as a PPM file
 *   quit                          ends the client, as does the end of stdin
 */
#define _GNU_SOURCE
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XShm.h>
#include <X11/extensions/XTest.h>
#include <X11/extensions/Xdamage.h>
#include <errno.h>
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/ipc.h>
#include <sys/shm.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

enum {
    SETTLE_LIMIT = 30000,
    INPUT_LIMIT = 1000,
    PICTURE_LIMIT = 5000,
    TAP_QUIET = 600,
    INPUT_QUIET = 150,
    CLICK_QUIET = 30,
    END_LIMIT = 3000
};

typedef struct
{
    int x, y, w, h;
} Rect;
typedef struct
{
    double t;
    uint64_t picture;
} Frame;

static Display* display;
static int screen, damage_event;
static XImage* image;
static unsigned long damage_count;
static double first_damage, last_damage;
static pid_t client;

static double now(void)
{
    struct timespec t;
    clock_gettime(CLOCK_MONOTONIC, &t);
    return t.tv_sec * 1e3 + t.tv_nsec / 1e6;
}

/* Windows of the client go away while events about them are under way. */
static int ignore_error(Display* d, XErrorEvent* e)
{
    (void)d;
    (void)e;
    return 0;
}

/* Returns whether there was damage. */
static int drain(void)
{
    const unsigned long before = damage_count;
    while (XPending(display)) {
        XEvent event;
        XNextEvent(display, &event);
        if (event.type != damage_event)
            continue;
        ++damage_count;
        last_damage = now();
        if (first_damage < 0)
            first_damage = last_damage;
    }
    return damage_count != before;
}

/* Waits for damage, or for input when asked, at most ms. Returns whether there is input. */
static int wait_for(double ms, int with_input)
{
    struct pollfd fds[2] = {{ConnectionNumber(display), POLLIN, 0}, {STDIN_FILENO, POLLIN, 0}};
    if (drain()) /* it came while Xlib waited for something else */
        return 0;
    if (ms < 0)
        ms = 0;
    struct timespec t = {(time_t)(ms / 1e3), 0};
    t.tv_nsec = (long)((ms - t.tv_sec * 1e3) * 1e6);
    if (ppoll(fds, with_input ? 2 : 1, &t, NULL) <= 0)
        return 0;
    drain();
    return with_input && (fds[1].revents & (POLLIN | POLLHUP));
}

static void wait_quiet(double quiet, double limit)
{
    const double start = now();
    for (;;) {
        const double t = now(), since = last_damage > start ? last_damage : start;
        if (t - since >= quiet || t - start >= limit)
            return;
        wait_for(quiet - (t - since), 0);
    }
}

/* Hash (FNV-1a over pixels) of a rectangle without another one, on a fresh picture of the screen. */
static uint64_t picture_of(Rect r, Rect without)
{
    uint64_t hash = 1469598103934665603u;
    XShmGetImage(display, RootWindow(display, screen), image, 0, 0, AllPlanes);
    for (int y = r.y; y < r.y + r.h; ++y) {
        const uint32_t* row = (const uint32_t*)(void*)(image->data + (long)y * image->bytes_per_line);
        const int cut = y >= without.y && y < without.y + without.h;
        for (int x = r.x; x < r.x + r.w; ++x) {
            if (cut && x >= without.x && x < without.x + without.w)
                continue;
            hash = (hash ^ (row[x] & 0xffffff)) * 1099511628211u;
        }
    }
    return hash;
}

static void reply(const char* name, double value)
{
    printf("{\"%s\":%.3f}\n", name, value);
}

static double first_damage_after(double start)
{
    while (first_damage < 0 && now() - start < INPUT_LIMIT)
        wait_for(INPUT_LIMIT - (now() - start), 0);
    return first_damage < 0 ? -1 : first_damage - start;
}

static void move_to(int x, int y)
{
    XTestFakeMotionEvent(display, screen, x, y, 0);
    XFlush(display);
}

static void button(int down)
{
    XTestFakeButtonEvent(display, 1, down, 0);
    XFlush(display);
}

static void press(int x, int y)
{
    move_to(x, y);
    wait_quiet(INPUT_QUIET, INPUT_LIMIT);
    first_damage = -1;
    const double start = now();
    button(True);
    reply("first", first_damage_after(start));
}

static void release(int x, int y)
{
    move_to(x, y);
    button(False);
    wait_quiet(INPUT_QUIET, INPUT_LIMIT);
    puts("{}");
}

static void key(const char* name)
{
    const KeyCode code = XKeysymToKeycode(display, XStringToKeysym(name));
    wait_quiet(INPUT_QUIET, INPUT_LIMIT);
    first_damage = -1;
    const double start = now();
    XTestFakeKeyEvent(display, code, True, 0);
    XTestFakeKeyEvent(display, code, False, 0);
    XFlush(display);
    reply("first", first_damage_after(start));
}

static void click(int x, int y)
{
    move_to(x, y);
    button(True);
    button(False);
}

static void tap(int x, int y, Rect r, int has_wanted, uint64_t wanted)
{
    const Rect none = {0, 0, 0, 0};
    const double start = now();
    click(x, y);
    if (!has_wanted) {
        wait_quiet(TAP_QUIET, PICTURE_LIMIT);
        printf("{\"picture\":\"%llx\"}\n", (unsigned long long)picture_of(r, none));
        return;
    }
    for (double t = start; t - start < PICTURE_LIMIT; t = now()) {
        if (picture_of(r, none) == wanted) {
            reply("ms", now() - start);
            return;
        }
        const unsigned long before = damage_count;
        while (damage_count == before && now() - start < PICTURE_LIMIT)
            wait_for(PICTURE_LIMIT - (now() - start), 0);
    }
    reply("ms", -1);
}

static void shot(const char* name)
{
    const Rect none = {0, 0, 0, 0};
    FILE* file = fopen(name, "wb");
    picture_of(none, none);
    if (file) {
        fprintf(file, "P6\n%d %d\n255\n", image->width, image->height);
        for (int y = 0; y < image->height; ++y) {
            for (int x = 0; x < image->width; ++x) {
                const unsigned long p = XGetPixel(image, x, y);
                const unsigned char rgb[3] = {p >> 16 & 255, p >> 8 & 255, p & 255};
                fwrite(rgb, 3, 1, file);
            }
        }
        fclose(file);
    }
    puts(file ? "{}" : "{\"error\":\"cannot write\"}");
}

static int client_ended(void)
{
    if (client && waitpid(client, NULL, WNOHANG) != 0)
        client = 0;
    return client == 0;
}

/* Returns 0 when it is time to end. */
static int obey(const char* line)
{
    static unsigned long seen;
    int x, y;
    char word[256];
    unsigned long long wanted = 0;
    Rect r;
    if (strcmp(line, "quit") == 0)
        return 0;
    if (client_ended()) {
        puts("{\"error\":\"the program has ended\"}");
    } else if (strcmp(line, "damage") == 0) {
        drain();
        printf("{\"events\":%lu}\n", damage_count - seen);
        seen = damage_count;
    } else if (sscanf(line, "press %d,%d", &x, &y) == 2) {
        press(x, y);
    } else if (sscanf(line, "release %d,%d", &x, &y) == 2) {
        release(x, y);
    } else if (sscanf(line, "click %d,%d", &x, &y) == 2) {
        first_damage = -1;
        const double start = now();
        click(x, y);
        const double first = first_damage_after(start);
        wait_quiet(CLICK_QUIET, INPUT_LIMIT);
        reply("first", first);
    } else if (sscanf(line, "key %255s", word) == 1) {
        key(word);
    } else if (sscanf(line, "shot %255s", word) == 1) {
        shot(word);
    } else {
        const int n = sscanf(line, "tap %d,%d %d,%d,%d,%d %llx", &x, &y, &r.x, &r.y, &r.w, &r.h, &wanted);
        if (n >= 6 && r.x >= 0 && r.y >= 0 && r.x + r.w <= image->width && r.y + r.h <= image->height)
            tap(x, y, r, n == 7, wanted);
        else
            puts("{\"error\":\"not understood\"}");
    }
    fflush(stdout);
    return 1;
}

static int open_screen(void)
{
    static XShmSegmentInfo segment;
    int error;
    if (!(display = XOpenDisplay(NULL)))
        return 0;
    fcntl(ConnectionNumber(display), F_SETFD, FD_CLOEXEC);
    XSetErrorHandler(ignore_error);
    screen = DefaultScreen(display);
    if (!XDamageQueryExtension(display, &damage_event, &error) || !XShmQueryExtension(display)
        || !XTestQueryExtension(display, &error, &error, &error, &error))
        return 0;
    damage_event += XDamageNotify;
    image = XShmCreateImage(display, DefaultVisual(display, screen), DefaultDepth(display, screen), ZPixmap,
        NULL, &segment, DisplayWidth(display, screen), DisplayHeight(display, screen));
    if (!image || image->bits_per_pixel != 32)
        return 0;
    segment.shmid = shmget(IPC_PRIVATE, (size_t)image->bytes_per_line * image->height, IPC_CREAT | 0600);
    if (segment.shmid < 0)
        return 0;
    segment.shmaddr = image->data = shmat(segment.shmid, NULL, 0);
    XShmAttach(display, &segment);
    XSync(display, False);
    shmctl(segment.shmid, IPC_RMID, NULL);
    move_to(image->width - 1, image->height - 1); /* the pointer off everything */
    XDamageCreate(display, RootWindow(display, screen), XDamageReportRawRectangles);
    XSync(display, False);
    last_damage = now();
    wait_quiet(200, 2000);
    return 1;
}

static void watch_start(double start, Rect ignored, double quiet)
{
    static Frame frames[4096];
    int n = 0;
    double first = -1;
    const Rect all = {0, 0, image->width, image->height};
    while (now() - start < SETTLE_LIMIT && !client_ended()) {
        const unsigned long before = damage_count;
        const double since = last_damage > start ? last_damage : start;
        if (first_damage >= 0 && now() - since >= quiet)
            break;
        wait_for(first_damage >= 0 ? quiet - (now() - since) : 100, 0);
        if (damage_count == before || n == 4096)
            continue;
        if (first < 0)
            first = first_damage - start;
        const uint64_t picture = picture_of(all, ignored);
        frames[n++] = (Frame){now() - start, picture}; /* the time at which the picture was certainly there */
    }
    double complete = -1;
    for (int i = n; i-- > 0 && frames[i].picture == frames[n - 1].picture;)
        complete = frames[i].t;
    printf("{\"pid\":%d,\"first\":%.3f,\"complete\":%.3f,\"frames\":%d}\n", (int)client, first, complete, n);
    fflush(stdout);
}

static void end_client(void)
{
    const double start = now();
    if (client_ended())
        return;
    kill(client, SIGTERM);
    while (now() - start < END_LIMIT) {
        if (client_ended())
            return;
        usleep(10000);
    }
    kill(client, SIGKILL);
    waitpid(client, NULL, 0);
}

int main(int argc, char** argv)
{
    Rect ignored = {0, 0, 0, 0};
    double quiet = 3000;
    int i = 1;
    for (; i + 1 < argc && strcmp(argv[i], "--") != 0; i += 2) {
        if (strcmp(argv[i], "--quiet") == 0)
            quiet = atof(argv[i + 1]);
        else if (strcmp(argv[i], "--ignore") != 0
            || sscanf(argv[i + 1], "%d,%d,%d,%d", &ignored.x, &ignored.y, &ignored.w, &ignored.h) != 4)
            break;
    }
    if (i + 1 >= argc || strcmp(argv[i], "--") != 0) {
        fputs("usage: xprobe [--ignore X,Y,W,H] [--quiet MS] -- COMMAND [ARGUMENT...]\n", stderr);
        return 2;
    }
    if (!open_screen()) {
        fputs("xprobe: needs a display with DAMAGE, XTEST, shared memory and 32 bits a pixel\n", stderr);
        return 3;
    }
    first_damage = -1;
    damage_count = 0;
    const double start = now();
    client = fork();
    if (client == 0) {
        dup2(open("/dev/null", O_RDONLY), STDIN_FILENO);
        dup2(STDERR_FILENO, STDOUT_FILENO); /* stdout is for the answers */
        execvp(argv[i + 1], argv + i + 1);
        _exit(127);
    }
    if (client < 0)
        return 3;
    watch_start(start, ignored, quiet);

    char buffer[1024];
    size_t fill = 0;
    for (int go = 1; go;) {
        if (!wait_for(1000, 1))
            continue;
        const ssize_t n = read(STDIN_FILENO, buffer + fill, sizeof buffer - 1 - fill);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            break;
        fill += (size_t)n;
        for (char* end; go && (end = memchr(buffer, '\n', fill));) {
            *end = 0;
            go = obey(buffer);
            fill -= (size_t)(end + 1 - buffer);
            memmove(buffer, end + 1, fill);
        }
    }
    end_client();
    return 0;
}

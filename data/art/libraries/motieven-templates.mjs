// Motifs of the templates, beside those of motieven.mjs. Each stands about its own origin.
import { colours as c, darker, dice, flower, heart, leaf, lighter, small, star, times, dotted } from './tekenen.mjs';
import { block, cream, dot, gold, goldDark, line, oval, orange, place, shape } from './motieven.mjs';

const wood = '#9a6b48';
export const each = (list, make) => list.map((item, i) => make(...item, i)).join('');
const clipped = (id, outline, inner) => `<clipPath id="${id}">${outline}</clipPath><g clip-path="url(#${id})">${inner}</g>`;

/** Dotted lines to write on. */
export const rules = (x0, x1, ys) => ys.map((y) => dotted(x0, y, x1)).join('');
/** Words with a dotted line behind each: [word, y]. */
export const fields = (x, x0, x1, rows, size = 18) =>
  each(rows, (word, y) => small(x, y, word, 'start', size) + dotted(x0, y, x1));

/** A house with light in its windows and a duller trim; see canalHouse. */
export const byNight = (house, light, trim) =>
  house.replaceAll('#8fb4bf', light).replaceAll('#b4d0d6', light).replaceAll('#fdf3df', trim);

// Sky and garden ------------------------------------------------------------------------------------------------------

export const cloud = (x, y, scale, fill = '#fff', opacity = 1) => place(x, y, `<g fill="${fill}" opacity="${opacity}">` +
  '<rect x="-48" y="-14" width="100" height="28" rx="14"/>' +
  '<circle cx="-16" cy="-12" r="22"/><circle cx="16" cy="-16" r="28"/></g>', scale);

// The stork and its bundle --------------------------------------------------------------------------------------------

const feathers = (x, y, from, to, count, length) => times(count, (i) => {
  const turn = from + ((to - from) * i) / (count - 1);
  return place(x, y, shape(`M0 -9Q${length * 0.7} -13 ${length} 0Q${length * 0.7} 10 0 9Z`, c.ink), 1, turn.toFixed(1));
}).join('');
const wing = (fill) => feathers(-18, -74, -164, -226, 6, 78) + feathers(-22, -40, -180, -226, 4, 66) +
  shape('M40 0C44 -50 22 -100 -28 -140C-52 -116 -62 -70 -58 -40Q-58 -20 -44 -12C-30 6 20 12 40 0Z', fill) +
  line('M-40 -92Q-22 -74 -8 -44M-46 -64Q-30 -48 -18 -26', '#e6dccb', 2.4);
const bundle = () => shape('M0 0C-10 18 -46 30 -46 62C-46 92 46 92 46 62C46 30 10 18 0 0Z', c.ochre) +
  shape('M-46 62C-46 92 46 92 46 62Q40 78 0 80Q-40 78 -46 62Z', darker(c.ochre), 0.3) +
  shape('M-6 4L-22 -16Q-8 -16 0 -2Q10 -18 24 -14L6 6Z', c.ochre) + oval(0, 52, 24, 23, '#f6cf86') + dot(0, 53, 19, '#fbdcc6') +
  line('M-6 35Q0 28 5 35', wood, 2.4) +
  line('M-11 52Q-8 55.5 -5 52M5 52Q8 55.5 11 52M-4 61Q0 64.5 4 61', c.ink, 1.8) +
  dot(-11, 58, 3.4, '#f2a993') + dot(11, 58, 3.4, '#f2a993') +
  each([[-33, 54], [33, 54], [-26, 74], [26, 74], [0, 82]], (x, y) => dot(x, y, 2.6, cream));

/** A stork on the wing, with a child in its bill. */
export const stork = () => line('M-62 6L-152 18M-62 10L-150 30', c.terracotta, 5) +
  line('M-152 18l-12 -5M-152 18l-12 6M-150 30l-12 -3M-150 30l-10 9', c.terracotta, 3.4) +
  place(34, -6, wing('#ece3d3'), 0.86, 58) +
  shape('M-118 10Q-92 -14 -50 -20L-46 16Q-92 22 -118 10Z', c.ink) +
  shape('M-84 4C-50 -30 10 -36 50 -18C84 -4 100 -34 128 -40C150 -44 158 -24 144 -16C118 -4 96 34 30 30C-20 30 -60 22 -84 4Z',
    cream) +
  shape('M-70 10C-40 18 0 22 40 16C76 10 96 -8 118 -20C96 20 76 32 30 30C-20 30 -50 22 -70 10Z', '#ece3d3') +
  shape('M146 -37Q180 -28 214 -8Q176 -12 146 -20Z', c.terracotta) + line('M150 -28Q184 -22 212 -8', darker(c.terracotta), 1.4) +
  dot(138, -31, 3.2, c.ink) + dot(137, -32, 1, '#fff') + place(6, -4, wing(cream), 1) + place(196, -8, bundle());

// Wedding -------------------------------------------------------------------------------------------------------------

/** Leaves and flowers in a ring about (0, 0). */
export function wreath(radius) {
  const spot = (angle, r = radius) => [+(r * Math.cos(angle)).toFixed(1), +(r * Math.sin(angle)).toFixed(1)];
  const leaves = times(60, (i) => {
    const angle = (i * Math.PI) / 30;
    const [x, y] = spot(angle, radius - 6 + (i % 3) * 6);
    const turn = (angle * 180) / Math.PI + 90 + (i % 2 ? 42 : -42);
    return leaf(x, y, 44 - (i % 3) * 5, turn, [c.sage, c.green, '#b9c79a'][i % 3]);
  }).join('');
  const blooms = each([[2.2, 32, '#fff6ee'], [1.55, 44, c.blush], [0.95, 34, c.terracotta], [2.75, 22, c.terracotta],
    [0.45, 21, c.ochre], [4.45, 26, c.blush], [5.0, 34, '#fff6ee'], [5.5, 23, c.terracotta], [3.9, 18, c.ochre]],
  (angle, size, fill) => flower(...spot(angle), size, fill, size > 30 ? 9 : 7, fill === c.ochre ? c.terracotta : c.ochre));
  const dots = each([[0.05, 9], [0.16, -9], [3.3, 8], [3.45, -8], [4.15, 12], [5.85, -10], [5.95, 6], [3.1, -10]],
    (angle, off) => dot(...spot(angle, radius + off), 5, c.blush) + dot(...spot(angle, radius + off), 2, cream));
  return `<circle r="${radius}" fill="none" stroke="${darker(c.sage)}" stroke-width="2.4"/>${leaves}${dots}${blooms}`;
}
const ring = (x, y) => `<circle cx="${x}" cy="${y}" r="44" fill="none" stroke="${goldDark}" stroke-width="13"/>` +
  `<circle cx="${x}" cy="${y}" r="45" fill="none" stroke="${gold}" stroke-width="7"/>` +
  line(`M${x - 40} ${y - 20}A45 45 0 0 1 ${x - 10} ${y - 44}`, '#fff6dc', 3.4);
/** Two rings, the one through the other. */
export const rings = () => ring(-29, 4) + ring(29, 4) +
  clipped('schakel', '<rect x="-20" y="10" width="50" height="40"/>', ring(-29, 4));

// The street ----------------------------------------------------------------------------------------------------------

const wheel = (x, y, r) => dot(x, y, r, c.ink) + dot(x, y, r * 0.52, '#e6dccb') + dot(x, y, r * 0.18, c.ink);
/** A van on its wheels at (0, 0), its back open. */
export const van = (fill) => block(0, -98, 150, 86, fill, 8) + shape('M0 -34H150V-12H0Z', darker(fill), 0.35) +
  shape('M150 -74H182Q192 -74 197 -64L210 -38Q222 -36 224 -26V-12H150Z', cream) +
  shape('M160 -66H180Q186 -66 189 -60L199 -40H160Z', '#a9c6cf') +
  block(150, -30, 74, 18, '#ece3d3', 3) + block(216, -30, 9, 9, gold, 3) + block(-6, -16, 236, 8, c.ink, 4) +
  block(166, -34, 12, 3, c.ink, 1.5) +
  heart(76, -54, 1.5, cream) + wheel(38, -8, 17) + wheel(186, -8, 17);

// School --------------------------------------------------------------------------------------------------------------

const [flagRed, flagBlue] = ['#c8402f', '#3c5f93'];
/** The Dutch flag: its hoist along a pole from one point to the other, its cloth hanging down. */
export function hangingFlag([ax, ay], [bx, by], drop) {
  const spot = (t) => [ax + (bx - ax) * t, ay + (by - ay) * t];
  const band = (from, to, fill, opacity = 1) => {
    const [[x0, y0], [x1, y1]] = [spot(from), spot(to)];
    return shape(`M${x0} ${y0}L${x1} ${y1}c14 ${drop * 0.3} -16 ${drop * 0.6} 4 ${drop}L${x0 + 4} ${y0 + drop}` +
      `c-20 ${-drop * 0.4} 10 ${-drop * 0.7} -4 ${-drop}Z`, fill, opacity);
  };
  return band(0, 1 / 3, flagBlue) + band(1 / 3, 2 / 3, cream) + band(2 / 3, 1, flagRed) +
    band(0.1, 0.24, c.ink, 0.1) + band(0.5, 0.64, c.ink, 0.07) + band(0.84, 1, c.ink, 0.12);
}

/** A brick front at the left edge, with a window and a box of flowers. */
export function brickFront(width, top, base) {
  const bricks = times(Math.floor((base - top) / 22), (row) => times(4, (i) =>
    block(8 + i * 40 + (row % 2) * 20, top + 16 + row * 22, 22, 6, '#b9664c', 2)).join('')).join('');
  const pane = (x, y) => block(x, y, 36, 52, '#a9c9d0') + shape(`M${x} ${y}H${x + 36}L${x} ${y + 52}Z`, '#c5dde1');
  const geraniums = each([[24, 0], [40, -7], [56, 1], [72, -8], [88, -1], [104, -4]], (x, y, i) =>
    dot(x, top + 188 + y, 8.5, i % 2 ? c.terracotta : '#e98a6f') + dot(x - 3, top + 183 + y, 3, cream, 0.5));
  return block(0, top, width, base - top, '#c9785c') +
    clipped('muur', `<rect y="${top}" width="${width}" height="${base - top}"/>`, bricks) +
    block(-4, top - 12, width + 16, 14, cream, 4) + block(-4, top + 2, width + 8, 5, '#a85a44') +
    block(16, top + 52, 98, 132, cream, 4) + [22, 70].map((x) => pane(x + 1, top + 60) + pane(x + 1, top + 120)).join('') +
    times(7, (i) => leaf(20 + i * 14, top + 198, 26, -100 + (i % 3) * 20, c.green)).join('') + geraniums +
    block(10, top + 194, 110, 18, c.green, 4) + block(10, top + 194, 110, 5, c.sage, 2.5);
}

// Valentine's ---------------------------------------------------------------------------------------------------------

/** The inside of an open envelope, and the pocket that comes before the letter. */
export const envelopeBack = (x, y, w, h, fill) =>
  shape(`M${x} ${y + 6}L${x + w / 2 - 16} ${y - h * 0.72}Q${x + w / 2} ${y - h * 0.8} ` +
  `${x + w / 2 + 16} ${y - h * 0.72}L${x + w} ${y + 6}Z`, darker(fill)) + block(x, y, w, h - 14, darker(fill));
export function envelopePocket(x, y, w, h, fill) {
  const [right, foot, middle] = [x + w, y + h, x + w / 2];
  const outline = `<path d="M${x} ${y}H${right}V${foot - 10}q0 10 -10 10H${x + 10}q-10 0 -10 -10Z"/>`;
  const sides = `M${x} ${y}L${x + w * 0.52} ${y + h * 0.62}L${x} ${foot}Z` +
    `M${right} ${y}L${x + w * 0.48} ${y + h * 0.62}L${right} ${foot}Z`;
  const front = `M${x - 4} ${foot + 2}L${middle - 14} ${y + h * 0.48}Q${middle} ${y + h * 0.4} ${middle + 14} ${y + h * 0.48}` +
    `L${right + 4} ${foot + 2}Z`;
  return clipped('zak', outline, shape(sides, fill) + shape(front, lighter(fill)));
}

// At the sea ----------------------------------------------------------------------------------------------------------

/** A sunshade; its foot is at (0, 0), its cloth in bands of two colours. */
export function parasol(radius, height, fills) {
  const rim = (i) => radius * Math.sin((-0.5 + i / 6) * Math.PI);
  const bands = times(6, (i) => {
    const [a, b] = [rim(i).toFixed(1), rim(i + 1).toFixed(1)];
    return shape(`M0 ${-radius * 0.72}C${a * 0.7} ${-radius * 0.68} ${a} ${-radius * 0.3} ${a} 0` +
      `Q${(Number(a) + Number(b)) / 2} ${-radius * 0.1} ${b} 0` +
      `C${b} ${-radius * 0.3} ${b * 0.7} ${-radius * 0.68} 0 ${-radius * 0.72}Z`, fills[i % fills.length]);
  }).join('');
  return line(`M0 0V${-height - radius * 0.7}`, wood, 6) + place(0, -height, bands + dot(0, -radius * 0.74, 6, wood));
}

/** A deck chair that looks to the right; its foot is at (0, 0). */
export function deckChair(fill) {
  const strip = (i) => {
    const [x, y] = [i * 12, i * -2.6];
    return shape(`M${x - 4} ${y - 124}C${x + 6} ${y - 66} ${x + 24} ${y - 30} ${x + 88} ${y - 34}h12.5` +
      `C${x + 36} ${y - 32} ${x + 18} ${y - 68} ${x + 8.5} ${y - 126.5}Z`, i % 2 ? cream : fill);
  };
  const side = (x, y, tone) => line(`M${x - 4} ${y - 124}L${x + 74} ${y + 2}M${x + 92} ${y - 34}L${x + 8} ${y + 2}`, tone, 5.5);
  return oval(72, 2, 92, 9, c.ink, 0.1) + side(66, -14, '#7d5638') + times(6, strip).join('') + side(0, 0, wood) +
    line('M-6 -124L68 -140M92 -34L160 -50', wood, 6);
}
export const strawHat = () => oval(0, 0, 40, 10, '#d9ab5c') + oval(0, -2, 40, 9, gold) +
  shape('M-22 -3C-22 -32 22 -32 22 -3Q0 4 -22 -3Z', gold) +
  shape('M-22 -10Q0 -3 22 -10V-3Q0 4 -22 -3Z', c.terracotta);

// Condolence ----------------------------------------------------------------------------------------------------------

const plume = (spread, length, tone, rays = 7) => line(times(rays, (i) => {
  const angle = (-90 + (i - (rays - 1) / 2) * spread) * Math.PI / 180;
  return `M0 0L${(Math.cos(angle) * length).toFixed(1)} ${(Math.sin(angle) * length).toFixed(1)}`;
}).join(''), tone, 0.8);
/** A seed on the wind. */
export const seed = (tone) => line('M0 0V22', tone, 1) + oval(0, 24, 1.8, 4, tone) + plume(22, 13, tone);
/** A dandelion clock about (0, 0), open where seeds have left it (in degrees). */
export function dandelion(radius, tone, gone = () => false) {
  const roll = dice(19);
  const seeds = times(44, (i) => {
    const [angle, reach] = [(i * 360) / 44 + roll() * 6, radius * [0.84, 0.6, 0.76][i % 3]];
    const spoke = line(`M0 0V${reach.toFixed(1)}`, tone, 0.7) + plume(30, radius * 0.2, tone, 5) + dot(0, 0, 1.1, tone);
    const placing = `rotate(${angle.toFixed(1)}) translate(0 ${-reach.toFixed(1)})`;
    return gone(angle) ? '' : `<g transform="${placing}" opacity="${(0.5 + roll() * 0.4).toFixed(2)}">${spoke}</g>`;
  }).join('');
  return dot(0, 0, radius, '#fff', 0.6) + seeds + dot(0, 0, radius * 0.12, tone);
}

// The sick-bed --------------------------------------------------------------------------------------------------------

const bearBrown = '#bd8554';
const plaster = (turn) =>
  place(24, -34, block(-15, -5.5, 30, 11, '#f6d9b8', 5.5) + block(-5, -5.5, 10, 11, '#eec59a', 1), 1, turn);
/** A bear's head about (0, 0), with a plaster and a thermometer. */
export const illBear = () => each([[-42, -36], [42, -36]], (x, y) => dot(x, y, 20, bearBrown) + dot(x, y, 11.5, '#e8bd8f')) +
  oval(0, 0, 58, 51, bearBrown) + shape('M26 -45C66 -24 66 34 16 49C44 24 46 -16 26 -45Z', darker(bearBrown), 0.22) +
  oval(0, 18, 28, 21, '#f3dcb9') + oval(0, 7, 9.5, 6.5, c.ink) + oval(-2.5, 5, 3, 1.6, '#fff', 0.6) +
  line('M0 13V21M-11 24Q-6 29 0 23Q6 29 11 24', c.ink, 2.2) + line('M-30 -8Q-24 -2 -18 -8M18 -8Q24 -2 30 -8', c.ink, 2.8) +
  dot(-37, 12, 9, c.terracotta, 0.35) + dot(37, 12, 9, c.terracotta, 0.35) + plaster(38) +
  place(8, 26, block(0, -3, 52, 7, '#f4fafa', 3.5) + block(14, -0.8, 30, 2.4, flagRed, 1.2) +
  block(0, -3, 12, 7, '#c9d9dc', 3.5), 1, 20);

/** A quilt of patches under an outline. */
export function quilt(outline, x0, y0, columns, rowCount, size) {
  const tones = ['#e9b39b', '#f5dca6', '#b9cfa9', '#a9c9d3', '#cfb3ca', '#fbf1dd'];
  const patches = times(columns * rowCount, (i) => {
    const [column, row] = [i % columns, Math.floor(i / columns)];
    const [x, y, fill] = [x0 + column * size, y0 + row * size, tones[(column * 2 + row * 3) % 6]];
    const [mx, my] = [x + size / 2, y + size / 2];
    const motifs = [heart(mx, my + 3, 0.7, darker(fill)), star(mx, my, 9, darker(fill)), dot(mx, my, 6, darker(fill)), ''];
    return block(x, y, size + 0.5, size + 0.5, fill) + `<g opacity=".45">${motifs[(column + row * 3) % 4]}</g>`;
  }).join('');
  const seams = times(columns, (i) => `M${x0 + i * size} ${y0}v${rowCount * size}`).join('') +
    times(rowCount, (i) => `M${x0} ${y0 + i * size}h${columns * size}`).join('');
  const stitches = line(seams, cream, 1.6, 0.9).replace('/>', ' stroke-dasharray="4 4"/>');
  return clipped('deken', `<path d="${outline}"/>`, patches + stitches);
}

// King's day ----------------------------------------------------------------------------------------------------------

const toyBear = () => each([[-13, -47], [13, -47]], (x, y) => dot(x, y, 6.5, bearBrown)) + oval(0, -14, 17, 16, bearBrown) +
  oval(0, -13, 10, 10, '#e8bd8f') +
  oval(0, -37, 18, 16, bearBrown) + oval(0, -31, 8.5, 6.5, '#f3dcb9') + oval(0, -34, 3, 2.2, c.ink) + dot(-7, -39, 1.9, c.ink) +
  dot(7, -39, 1.9, c.ink) +
  oval(-12, -3, 8, 6, '#c89263') + oval(12, -3, 8, 6, '#c89263');
const books = () => each([[-22, -10, 44, c.green], [-18, -20, 40, c.ochre], [-21, -29, 36, c.plum]], (x, y, w, fill) =>
  block(x, y, w, 10, fill, 2) + block(x + w - 7, y + 2, 6, 6, cream, 1));
const vase = () => shape('M-9 -34H9Q6 -24 13 -16Q16 -4 9 0H-9Q-16 -4 -13 -16Q-6 -24 -9 -34Z', c.blue) +
  line('M-13 -14Q0 -8 13 -14', cream, 2.4) +
  line('M0 -34V-52M-2 -34L-11 -48M2 -34L11 -50', c.green, 2) + flower(0, -58, 11, orange, 7, c.terracotta) +
  flower(-13, -50, 9, cream, 6) + flower(13, -51, 9, flagRed, 6);
const skittle = (fill) => shape('M-5 0Q-9 -14 -3 -24Q-6 -36 0 -37Q6 -36 3 -24Q9 -14 5 0Z', fill) +
  block(-4.5, -25, 9, 4, cream, 2);

/** A stall at the flea market, 280 pixels wide; its foot is at (0, 0). `wares` stand on its table. */
export function marketStall(wares) {
  const stripes = times(8, (i) => {
    const [x, fill] = [-148 + i * 37, i % 2 ? cream : flagBlue];
    return shape(`M${x * 0.86} -224H${(x + 37) * 0.86}L${x + 37} -178V-168a18.5 13 0 0 1 -37 0V-178Z`, fill) +
      shape(`M${x} -178H${x + 37}V-168a18.5 13 0 0 1 -37 0Z`, c.ink, 0.09);
  }).join('');
  const legs = [-132, 124].map((x) => block(x, -180, 8, 180, wood, 2)).join('');
  const cloth = block(-144, -68, 288, 60, cream, 3) +
    times(6, (i) => heart(-118 + i * 47.4, -29, 0.9, [flagRed, orange, flagBlue][i % 3])).join('') +
    block(-144, -68, 288, 5, '#e5dac6', 2);
  return oval(0, 0, 168, 9, c.ink, 0.12) + block(-128, -200, 256, 130, '#b9601c') + legs + cloth +
    block(-152, -78, 304, 12, wood, 4) + block(-152, -78, 304, 4, '#b98757', 2) + place(0, -78, wares) + stripes;
}
/** What a child sells: toys, books and what the attic gave. */
export const atticWares = () => place(-92, 0, toyBear(), 1.25) + place(-34, 0, books(), 1.1) + place(28, 0, vase(), 1.1) +
  each([[66, flagRed], [84, c.ochre], [102, c.blue]], (x, fill) => place(x, 0, skittle(fill), 1.3));

// Easter --------------------------------------------------------------------------------------------------------------

/** A wicker basket, 180 pixels wide; its foot is at (0, 0). */
export function basket() {
  const rows = times(5, (row) => times(12, (i) => {
    const half = 84 - row * 5;
    const x = -half + ((i + (row % 2) / 2) * 2 * half) / 12;
    return block(x.toFixed(1), -74 + row * 14, (half / 6 - 2.5).toFixed(1), 10, (i + row) % 2 ? '#cf9d5f' : '#bd8748', 4);
  }).join('')).join('');
  return shape('M-88 -78H88L68 -6Q0 6 -68 -6Z', '#a87338') +
    clipped('mand', '<path d="M-88 -78H88L68 -6Q0 6 -68 -6Z"/>', rows) +
    block(-94, -86, 188, 16, '#cf9d5f', 8) + line(times(14, (i) => `M${-86 + i * 13} -72l7 -12`).join(''), '#a87338', 2.4);
}

// A bouquet in paper --------------------------------------------------------------------------------------------------

/** Flowers in a paper cone; its foot is at (0, 0), its top 330 pixels higher. */
export function bouquet() {
  const greens = times(15, (i) =>
    leaf(0, -190, 128 - (i % 3) * 16, -172 + i * 11.4, [c.sage, c.green, '#b9c79a'][i % 3])).join('');
  const stems = each([[-96, -246], [98, -256], [-54, -306], [50, -312]], (x, y) =>
    line(`M0 -150Q${x * 0.4} -210 ${x} ${y}`, c.green, 1.8) + each([[0, 0], [9, -9], [-9, -8], [2, -17], [13, 4]],
      (dx, dy) => dot(x + dx, y + dy, 4.6, '#fff6ee') + dot(x + dx, y + dy, 1.6, c.ochre)));
  const blooms = each([[-66, -208, 40, c.ochre], [70, -212, 42, c.terracotta], [0, -276, 40, c.terracotta],
    [-44, -262, 32, '#fff6ee'], [48, -268, 33, c.blush], [4, -212, 54, c.plum], [-32, -178, 31, c.blush],
    [42, -176, 32, '#fff6ee'], [-86, -174, 24, c.plum], [86, -170, 22, c.ochre]],
  (x, y, size, fill) => flower(x, y, size, fill, size > 36 ? 9 : 7, fill === c.ochre ? c.terracotta : c.ochre));
  const paper = shape('M-104 -168Q-54 -132 0 -146Q54 -132 104 -168L26 -44H-26Z', '#f3e3c8') +
    shape('M-104 -168Q-60 -150 -8 -110L8 -44H-26Z', '#fbf1dd') +
    shape('M104 -168Q66 -150 10 -112L-2 -44H26Z', '#e7d2ae');
  const ends = line('M-8 -44L-20 -2M0 -44V2M8 -44L20 -2M4 -44L10 0M-4 -44L-10 0', c.green, 4.5);
  const bow = shape('M0 -46C-40 -76 -56 -40 -44 -32C-32 -26 -12 -36 0 -46C12 -36 32 -26 44 -32C56 -40 40 -76 0 -46Z',
    c.terracotta) +
    shape('M-4 -44L-34 2L-22 0L-16 8L4 -40L18 10L24 0L36 2L6 -44Z', darker(c.terracotta)) +
    block(-9, -54, 18, 17, darker(c.terracotta), 6);
  return oval(0, -172, 88, 40, c.green) + greens + stems + ends + blooms + paper + block(-27, -54, 54, 16, c.terracotta, 6) +
    bow;
}

// Christmas -----------------------------------------------------------------------------------------------------------

/** A fir hung with lights and baubles; its pot below (0, 0), its star 300 pixels above. */
export function christmasTree() {
  const tiers = [[-36, 122, 104], [-96, 98, 92], [-150, 76, 82], [-198, 54, 76]].map(([y, half, height], i) => {
    const swag = `M${-half} ${y}q${half / 6} 15 ${half / 3} 2q${half / 6} 17 ${half / 3} 2q${half / 6} 17 ${half / 3} 2`;
    const rest = `q${half / 6} 15 ${half / 3} -2q${half / 6} 15 ${half / 3} -2q${half / 6} 13 ${half / 3} -2`;
    const sides = `Q${half * 0.3} ${y - height * 0.5} 0 ${y - height}Q${-half * 0.3} ${y - height * 0.5} ${-half} ${y}Z`;
    const outline = swag + rest + sides;
    return shape(outline, '#3f6f55') + clipped(`tak${i}`, `<path d="${outline}"/>`,
      block(16, y - height, half, height + 30, '#315a45') +
      line(`M${-half} ${y - height * 0.36}Q0 ${y + 8} ${half} ${y - height * 0.4}`, gold, 2.2));
  }).join('');
  const balls = each([[-84, -38, flagRed], [-36, -32, gold], [18, -30, flagRed], [72, -38, c.blush], [-58, -92, gold],
    [-4, -86, c.blush], [50, -92, flagRed],
    [-36, -144, flagRed], [24, -140, gold], [-8, -194, c.blush], [22, -192, flagRed]], (x, y, fill) =>
    dot(x, y, 9, fill) + block(x - 2.5, y - 12, 5, 4, goldDark, 1) + dot(x - 3, y - 3, 2.4, '#fff', 0.7));
  return oval(0, 30, 96, 9, c.ink, 0.14) + block(-11, -40, 22, 44, wood) + shape('M-36 0H36L27 32H-27Z', c.ochre) +
    shape('M12 0H36L27 32H10Z', goldDark, 0.5) + block(-40, -6, 80, 11, gold, 4) +
    tiers + balls + star(0, -276, 24, gold) + star(0, -276, 11, '#fff3cf');
}

// New year ------------------------------------------------------------------------------------------------------------

const doughBall = (x, y, r, i) => dot(x, y, r, '#b9793f') +
  shape(`M${x + r * 0.3} ${y - r * 0.95}A${r} ${r} 0 0 1 ${x - r * 0.5} ${y + r * 0.87}` +
  `A${r * 1.3} ${r * 1.3} 0 0 0 ${x + r * 0.3} ${y - r * 0.95}Z`, '#96602f') +
  dot(x + (i % 3 - 1) * r * 0.4, y + r * 0.4, 2.2, '#5f3c20') +
  oval(x - r * 0.1, y - r * 0.56, r * 0.66, r * 0.36, '#fffaf0', 0.95) + dot(x - r * 0.52, y - r * 0.28, r * 0.22, '#fffaf0') +
  each([[0.3, -0.2], [0.56, -0.3], [-0.1, 0], [-0.62, 0.1], [0.14, 0.2]],
  (dx, dy) => dot((x + dx * r).toFixed(1), (y + dy * r).toFixed(1), 1.3, '#fffaf0'));
/** Fried dough balls with sugar, on a dish; its foot is at (0, 0). */
export const doughBalls = () => oval(0, -3, 78, 9, darker(c.blue)) + oval(0, -7, 78, 9, lighter(c.blue)) +
  each([[-44, -25, 20], [44, -25, 20], [-15, -24, 21], [16, -25, 21], [-29, -52, 20], [30, -52, 20], [1, -55, 20],
    [-14, -80, 19], [17, -80, 19]], doughBall);

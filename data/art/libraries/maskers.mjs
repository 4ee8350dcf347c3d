// The masks: what is white here becomes white on the design. All are drawn lying.
import { colours as c, darker, dice, flower, heart, star, times, sheet, lying } from './tekenen.mjs';

const n = (value) => value.toFixed(1);
const disc = (x, y, r, fill) => `<circle cx="${n(x)}" cy="${n(y)}" r="${n(r)}" fill="${fill}"/>`;
const white = sheet(640, 440, '#fff');

/** A drawing of 440 x 640 laid on its right side, so that it stands on an upright card. */
const staand = (inner) => `<g transform="translate(640 0) rotate(90)">${inner}</g>`;

/** A shape with a white line along its edge, `far` inside it. */
const gezoomd = (d, tone, far, more = '') =>
  `<path ${more} d="${d}" fill="${tone}" stroke="${tone}" stroke-width="${far * 2}" stroke-linejoin="round"/>` +
  `<path ${more} d="${d}" fill="none" stroke="#fff" stroke-width="4.5" stroke-linejoin="round"/>`;

/** The outline of bows along an ellipse. */
const scallops = (cx, cy, rx, ry, count, out) => {
  const at = (i, grow) => `${(cx + (rx + grow) * Math.cos((i * 2 * Math.PI) / count)).toFixed(1)} ` +
    `${(cy + (ry + grow) * Math.sin((i * 2 * Math.PI) / count)).toFixed(1)}`;
  return `M${at(0, 0)}${times(count, (i) => `Q${at(i + 0.5, out)} ${at(i + 1, 0)}`).join('')}Z`;
};

function medaillon() {
  const holes = times(40, (i) => {
    const turn = ((i + 0.5) * Math.PI) / 20;
    return `<circle cx="${(320 + 281 * Math.cos(turn)).toFixed(1)}" cy="${(220 + 181 * Math.sin(turn)).toFixed(1)}" r="5.4" ` +
      `fill="#fff"/>`;
  }).join('');
  const corners = [[44, 40], [596, 40], [44, 400], [596, 400]].map(([x, y]) =>
    flower(x, y, 34, c.plum, 8, c.plum).replace(/fill="#[0-9a-f]+"/g, `fill="${darker(c.plum)}"`)).join('');
  return sheet(640, 440, '#fff') + `<path d="${scallops(320, 220, 280, 180, 40, 44)}" fill="${darker(c.plum)}"/>${holes}` +
    `<ellipse cx="320" cy="220" rx="268" ry="168" fill="none" stroke="#fff" stroke-width="4"/>${corners}`;
}

function postzegel() {
  const along = (count, length) => times(count + 1, (i) => (i * length) / count);
  const teeth = [...along(24, 600).flatMap((x) => [[20 + x, 20], [20 + x, 420]]),
    ...along(16, 400).flatMap((y) => [[20, 20 + y], [620, 20 + y]])];
  return sheet(640, 440, '#fff') + `<rect x="20" y="20" width="600" height="400" fill="${darker(c.green)}"/>` +
    teeth.map(([x, y]) => `<circle cx="${x}" cy="${y}" r="8" fill="#fff"/>`).join('') +
    '<rect x="44" y="44" width="552" height="352" fill="none" stroke="#fff" stroke-width="6"/>';
}

function hart() {
  const tone = darker(c.terracotta);
  const shape = 'M320 390C200 310 108 232 108 152C108 92 154 52 208 52C256 52 298 78 320 118C342 78 384 52 432 52C486 52 532 ' +
    '92 532 152C532 232 440 310 320 390Z';
  const small = [[62, 84, 1.9, -14], [118, 352, 2.4, 12], [46, 262, 1.3, 10], [196, 404, 1, -10], [578, 84, 1.9, 14],
    [522, 352, 2.4, -12], [594, 262, 1.3, -10], [444, 404, 1, 10]];
  return white + gezoomd(shape, tone, 18) + small.map(([x, y, size, turn]) => heart(x, y, size, tone, turn)).join('');
}

/** So many points at even distances along a row of cubic curves. */
function punten(curves, count) {
  const walk = curves.flatMap(([a, b, d, e]) => times(400, (i) => [0, 1].map((k) => {
    const t = i / 400;
    return (1 - t) ** 3 * a[k] + 3 * t * (1 - t) ** 2 * b[k] + 3 * t * t * (1 - t) * d[k] + t ** 3 * e[k];
  })));
  const gone = walk.map(([x, y], i) => (i ? Math.hypot(x - walk[i - 1][0], y - walk[i - 1][1]) : 0));
  gone.forEach((step, i) => { gone[i] = step + (gone[i - 1] ?? 0); });
  return times(count, (i) => walk[gone.findIndex((far) => far >= (gone.at(-1) * i) / count)]);
}

function kantenHart() {
  const tone = darker('#c2707f');
  const half = [[[220, 528], [316, 452], [390, 366], [390, 262]], [[390, 262], [390, 172], [262, 142], [220, 234]]];
  const right = `C${half[0].slice(1)}C${half[1].slice(1)}`;
  const outline = `M220 528${right}C178 142 50 172 50 262C50 366 124 452 220 528Z`;
  const lace = punten(half, 24).flatMap(([x, y], i) => (i ? [[x, y], [440 - x, y]] : [[x, y]]));
  return white + staand(`<path d="${outline}" fill="${tone}"/>` + lace.map(([x, y]) => disc(x, y, 15, tone)).join('') +
    disc(220, 228, 14, tone) + lace.map(([x, y]) => disc(x, y, 5.2, '#fff')).join('') +
    `<path transform="translate(25.3 66) scale(.885 .83)" d="${outline}" fill="none" stroke="#fff" stroke-width="4.8"/>` +
    [[220, 84, 2.6, 0], [136, 104, 1.6, -12], [304, 104, 1.6, 12], [70, 128, 1, -18], [370, 128, 1, 18], [220, 590, 1.6, 0],
    [150, 576, 1, 10], [290, 576, 1, -10]].map(([x, y, size, turn]) =>
      heart(x, y, size, tone, turn)).join(''));
}

function sterren() {
  const tone = darker('#c99a3e');
  const soft = (x, y, r, turn) => star(x, y, r, tone, 5, turn, 0.52).replace('/>',
    ` stroke="${tone}" stroke-width="${n(r * 0.14)}" stroke-linejoin="round"/>`);
  const around = [[70, 74, 42, 10], [160, 40, 16, -60], [52, 196, 20, -30], [96, 312, 34, -80], [46, 400, 18, 0],
    [186, 404, 18, -40], [582, 358, 44, 20], [488, 402, 18, -70],
    [592, 240, 20, -100], [560, 118, 34, -50], [488, 44, 20, 0], [604, 40, 16, -20]];
  return white + soft(320, 222, 196, -100) + star(320, 222, 166, 'none', 5, -100, 0.52).replace('/>',
    ' stroke="#fff" stroke-width="4.5" stroke-linejoin="round"/>') +
    around.map(([x, y, r, turn]) => soft(x, y, r, turn)).join('');
}

/** A torn edge all around, so far from the edge of the mask; the tears of one `wave` run side by side. */
function rafel(seed, inset, wave) {
  const roll = dice(seed);
  const [w, h] = [640 - inset * 2, 440 - inset * 2];
  const side = (length, place, phase) => times(Math.round(length / 5), (i) => {
    const share = i / Math.round(length / 5);
    const bend = Math.sin(share * 17 + phase + wave) * 2.6 + Math.sin(share * 41 + phase * 2 + wave) * 1.7;
    return place(share * length, bend * Math.min(1, share * 12, (1 - share) * 12) + (roll() - 0.5) * 3.4 +
      (roll() < 0.08 ? roll() * 5 - 2.5 : 0));
  });
  return [...side(w, (far, off) => [inset + far, inset + off], 0), ...side(h, (far, off) => [640 - inset + off, inset + far], 1),
    ...side(w, (far, off) => [640 - inset - far, 440 - inset + off], 2),
    ...side(h, (far, off) => [inset + off, 440 - inset - far], 3)]
    .map(([x, y]) => `${n(x)} ${n(y)}`).join('L');
}

function gescheurd() {
  const tone = darker(c.blue);
  return white + `<path d="M${rafel(7, 23, 0)}Z" fill="${tone}"/><path d="M${rafel(23, 35, 0.3)}Z" fill="#fff"/>` +
    `<path d="M${rafel(31, 43, 1.2)}Z" fill="${tone}"/>`;
}

function filmstrook() {
  const tone = '#4b4a55';
  const holes = times(19, (i) => [-174, 150].map((y) => `<rect x="${-387 + i * 42}" y="${y}" width="22" height="24" rx="5" ` +
    `fill="#fff"/>`).join('')).join('');
  const frames = [-377, -125, 127].map((x) => `<rect x="${x}" y="-134" width="246" height="268" rx="10" fill="none" ` +
    `stroke="#fff" stroke-width="5"/>`).join('');
  return white + `<g transform="translate(320 220) rotate(-5)"><rect x="-420" y="-186" width="840" height="372" ` +
    `fill="${tone}"/>${holes}${frames}</g>`;
}

/** One side of a jigsaw piece from a to b; `knob` is 1 or -1 for the hand it bulges to, 0 for a straight side. */
function puzzelrand([ax, ay], [bx, by], knob) {
  const on = (far, out) => `${n(ax + (bx - ax) * far - (by - ay) * out * knob)} ` +
    `${n(ay + (by - ay) * far + (bx - ax) * out * knob)}`;
  return knob === 0 ? `L${bx} ${by}` : `C${on(0.2, 0)} ${on(0.44, -0.05)} ${on(0.4, 0.06)}C${on(0.34, 0.13)} ` +
    `${on(0.36, 0.25)} ${on(0.5, 0.25)}` +
    `C${on(0.64, 0.25)} ${on(0.66, 0.13)} ${on(0.6, 0.06)}C${on(0.56, -0.05)} ${on(0.8, 0)} ${bx} ${by}`;
}

function puzzel() {
  const tone = darker('#6f8fb3');
  const [columns, rows, side, left, top] = [4, 3, 128, 58, 26];
  const across = (column, row) => (column <= 0 || column >= columns ? 0 : (column + row) % 2 ? 1 : -1);
  const down = (column, row) => (row <= 0 || row >= rows ? 0 : (column + row) % 2 ? -1 : 1);
  const piece = (column, row) => {
    const corner = (dx, dy) => [left + (column + dx) * side, top + (row + dy) * side];
    const [a, b, d, e] = [corner(0, 0), corner(1, 0), corner(1, 1), corner(0, 1)];
    return `<path d="M${a.join(' ')}${puzzelrand(a, b, down(column, row))}${puzzelrand(b, d, across(column + 1, row))}` +
      `${puzzelrand(d, e, -down(column, row + 1))}${puzzelrand(e, a, -across(column, row))}Z" fill="${tone}" stroke="#fff" ` +
      `stroke-width="5" stroke-linejoin="round"/>`;
  };
  const pieces = times(columns * rows - 1, (i) => piece(i % columns, Math.floor(i / columns))).join('');
  return white + pieces + `<g transform="translate(17 4) rotate(8 506 346)">${piece(3, 2)}</g>`;
}

function venster() {
  const tone = darker(c.green);
  const panes = [[112, 62], [325, 62], [112, 226], [325, 226]].map(([x, y]) => `<rect x="${x}" y="${y}" width="203" ` +
    `height="${y < 100 ? 154 : 146}" fill="${tone}"/>`).join('');
  const drape = 'M84 62H262C256 140 216 206 138 240H84ZM84 258H136C142 300 152 338 158 372H84Z';
  const folds = 'M124 66C124 140 112 206 100 236M172 66C168 140 142 206 116 237M220 66C212 132 170 200 128 236M102 262C102 ' +
    '310 106 340 110 368M118 262C122 310 128 340 134 368';
  const curtain = `<path d="M84 62H262C256 140 216 206 138 240L136 258C142 300 152 338 158 372H84Z" fill="#fff" stroke="#fff" ` +
    `stroke-width="11" stroke-linejoin="round"/>` +
    `<path d="${drape}" fill="${tone}"/><path d="${folds}" fill="none" stroke="#fff" stroke-width="4" stroke-linecap="round"/>`;
  const rings = times(18, (i) => (i > 6 && i < 11 ? '' :
    `<circle cx="${92 + i * 26.8}" cy="46" r="8" fill="none" stroke="${tone}" stroke-width="3"/>`)).join('');
  const cat = '<path d="M-30 0C-38 -40 -26 -58 -10 -66C-26 -74 -24 -92 -21 -106L-8 -96H8L21 -106C24 -92 26 -74 10 -66C26 -58 ' +
    '38 -40 30 0Z" fill="#fff"/>' +
    '<path d="M24 -5C48 4 66 -8 58 -34" fill="none" stroke="#fff" stroke-width="9" stroke-linecap="round"/>';
  return white + panes + `<g transform="translate(410 372)">${cat}</g>` +
    curtain + `<g transform="translate(640 0) scale(-1 1)">${curtain}</g>` +
    `<rect x="56" y="30" width="528" height="12" rx="6" fill="${tone}"/>` + disc(54, 36, 15, tone) + disc(586, 36, 15, tone) +
    rings +
    `<rect x="46" y="380" width="548" height="22" rx="4" fill="${tone}"/><rect x="74" y="408" width="492" height="9" rx="4" ` +
    `fill="${tone}"/>`;
}

function penseel() {
  const roll = dice(53);
  const tone = darker(c.plum);
  const stroke = (y, x0, x1, high, bend) => {
    const hairs = times(Math.round(high / 4), (i) => {
      const far = (i * 4) / high - 0.5;
      const round = 30 * Math.abs(far * 2) ** 2.4;
      const [start, end] = [x0 + round + roll() * 30, x1 - round - roll() * 64];
      const level = y + far * high;
      return `<path d="M${n(start)} ${n(level)}Q320 ${n(level + bend)} ${n(end)} ${n(level)}" ` +
        `stroke-width="${n(5 + roll() * 0.8)}"/>`;
    }).join('');
    const dry = times(5, () => {
      const [from, level] = [x1 - 120 - roll() * 150, y + (roll() - 0.5) * high * 0.8];
      return `<path d="M${n(from)} ${n(level)}Q${n(from + 60)} ${n(level + bend * 0.12)} ${n(x1 + 20)} ` +
        `${n(level - bend * 0.1)}" stroke="#fff" stroke-width="${n(2.8 + roll() * 1.4)}"/>`;
    }).join('');
    return hairs + dry;
  };
  return white + `<g fill="none" stroke="${tone}" stroke-linecap="round">` + stroke(62, 64, 604, 74, -16) +
    stroke(142, 24, 584, 76, -8) + stroke(220, 46, 628, 74, -18) +
    stroke(300, 16, 596, 78, -8) + stroke(380, 70, 622, 72, -14) + '</g>';
}

function kerstbal() {
  const tone = darker('#b5443a');
  const ball = (r, paint) => `<circle cx="220" cy="372" r="${r}" ${paint}/>`;
  const zigzag = (y, deep) => `M20 ${y}${times(11, (i) => `L${20 + (i + 0.5) * 36.4} ${y + (i % 2 ? 0 : deep)}`).join('')}`;
  const needle = (x, y, angle, long) =>
    `<path d="M${n(x)} ${n(y)}l${n(long * Math.cos(angle))} ${n(long * Math.sin(angle))}" stroke-width="5.5"/>`;
  const twig = `<g fill="none" stroke="${tone}" stroke-linecap="round"><path d="M0 0Q70 14 124 66" stroke-width="5"/>` +
    times(8, (i) => {
      const t = 0.14 + i * 0.122;
      const [x, y] = [140 * t * (1 - t) + 124 * t * t, 28 * t * (1 - t) + 66 * t * t];
      return [-1, 1].map((hand) => needle(x, y, 0.25 + t * 0.5 + hand * 0.72, 34 - t * 14)).join('');
    }).join('') + '</g>';
  const bow = `<path d="M220 128C186 82 140 92 146 126C150 152 192 150 220 128C248 150 290 152 294 126C300 92 254 82 220 ` +
    `128Z" fill="${tone}"/>` +
    `<path d="M206 134L158 176L172 180L178 194L216 142ZM234 134L282 176L268 180L262 194L224 142Z" fill="${tone}"/>` +
    disc(220, 130, 17, '#fff') + disc(220, 130, 13, tone);
  const flakes = [[64, 190, 16], [376, 190, 16], [220, 52, 20], [40, 560, 20], [400, 560, 20], [92, 606, 11], [348, 606, 11],
    [30, 262, 9], [410, 262, 9]].map(([x, y, r]) => star(x, y, r, tone, 6, -90, 0.42)).join('');
  return white + staand(`<clipPath id="bal">${ball(172, '')}</clipPath>` + ball(184, `fill="${tone}"`) +
    ball(172, 'fill="none" stroke="#fff" stroke-width="4.5"') +
    `<g clip-path="url(#bal)" fill="none" stroke="#fff" stroke-width="4.5" stroke-linejoin="round">` +
    `<path d="M20 300H420M20 444H420"/><path d="${zigzag(276, 14)}M20 276"/><path d="${zigzag(454, 14)}"/></g>` +
    `<rect x="194" y="166" width="52" height="30" rx="6" fill="#fff"/><rect x="198" y="168" width="44" height="24" rx="5" ` +
    `fill="${tone}"/>` +
    [[112, 16], [220, 26], [328, 16]].map(([x, r]) => star(x, 372, r, '#fff', 6, -90, 0.42)).join('') + bow +
    `<g transform="translate(24 30) scale(.88)">${twig}</g><g transform="translate(416 30) scale(-.88 .88)">${twig}</g>` +
    flakes);
}

function wolken() {
  const tone = darker('#7fa9bf');
  const cloud = 'M-200 90A78 78 0 0 1 -206 -64A92 92 0 0 1 -92 -118A118 118 0 0 1 108 -124A96 96 0 0 1 212 -52A74 74 0 0 1 ' +
    '204 90Z';
  const hung = (x, y, long, what) => `<path d="M${x} ${y}V${y + long}" stroke="${tone}" stroke-width="3"/>` + what(x, y + long);
  const ster = (r) => (x, y) => star(x, y + r * 0.7, r, tone, 5, -90, 0.52).replace('/>',
    ` stroke="${tone}" stroke-width="4" stroke-linejoin="round"/>`);
  const hartje = (size) => (x, y) => heart(x, y + 13 * size, size, tone);
  return white + gezoomd(cloud, tone, 16, 'transform="translate(320 212) scale(.96)"') +
    hung(150, 300, 40, ster(18)) + hung(236, 300, 66, hartje(1.5)) + hung(320, 300, 44, ster(24)) +
    hung(404, 300, 66, hartje(1.5)) + hung(490, 300, 40, ster(18));
}

/** In the order of their numbers: size and drawing. */
export const maskers = [
  [lying, medaillon()], [lying, postzegel()], [lying, hart()], [lying, kantenHart()],
  [lying, sterren()], [lying, gescheurd()], [lying, filmstrook()], [lying, puzzel()],
  [lying, venster()], [lying, penseel()], [lying, kerstbal()], [lying, wolken()],
];

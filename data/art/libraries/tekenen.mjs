// What all drawings of the libraries share: the palette and small pieces of SVG.
export const colours = {
  paper: '#fdf6e9', terracotta: '#d9694a', ochre: '#eeb654', sage: '#94b285', green: '#4f7f66', blue: '#6fa3b8',
  plum: '#a27a9c', blush: '#f2c3b0', ink: '#4a3f3a',
};

export const times = (count, make) => Array.from({ length: count }, (_, i) => make(i));

const parts = (hex) => [1, 3, 5].map((at) => parseInt(hex.slice(at, at + 2), 16));
const mix = (from, to, share) =>
  `#${parts(from).map((byte, i) => Math.round(byte + (parts(to)[i] - byte) * share).toString(16).padStart(2, '0')).join('')}`;
export const darker = (colour) => mix(colour, '#2a1c14', 0.35);
export const lighter = (colour) => mix(colour, '#ffffff', 0.38);

/** A star of so many points about (x, y); `turn` in degrees, -90 is upright. */
export function star(x, y, radius, fill, points = 5, turn = -90, inner = 0.4) {
  const corners = times(points * 2, (i) => {
    const angle = (turn * Math.PI) / 180 + (i * Math.PI) / points;
    const r = i % 2 ? radius * inner : radius;
    return `${(x + r * Math.cos(angle)).toFixed(2)} ${(y + r * Math.sin(angle)).toFixed(2)}`;
  });
  return `<path d="M${corners.join('L')}Z" fill="${fill}"/>`;
}

/** Numbers from 0 to 1 that are the same at every run. */
export function dice(seed) {
  let state = seed;
  return () => {
    state = (state * 1103515245 + 12345) % 2147483648;
    return state / 2147483648;
  };
}

export const leaf = (x, y, length, angle, fill) =>
  `<g transform="translate(${x.toFixed(1)} ${y.toFixed(1)}) rotate(${angle.toFixed(1)})"><path d="M0 0Q${length * 0.4} ${-length * 0.34} ${length} 0Q${length * 0.4} ${length * 0.34} 0 0Z" fill="${fill}"/>` +
  `<path d="M0 0H${length * 0.8}" stroke="${lighter(fill)}" stroke-width="1" fill="none"/></g>`;

/** A stem along a quadratic curve with leaves to both sides, smaller toward its end. */
export function sprig([[x0, y0], [x1, y1], [x2, y2]], count, length, fill) {
  const at = (a, b, d, t) => (1 - t) * (1 - t) * a + 2 * t * (1 - t) * b + t * t * d;
  const slope = (a, b, d, t) => 2 * (1 - t) * (b - a) + 2 * t * (d - b);
  const leaves = times(count, (i) => {
    const t = 0.12 + (0.88 * i) / (count - 1);
    const angle = (Math.atan2(slope(y0, y1, y2, t), slope(x0, x1, x2, t)) * 180) / Math.PI;
    const side = i === count - 1 ? 0 : i % 2 ? 48 : -48;
    return leaf(at(x0, x1, x2, t), at(y0, y1, y2, t), length * (1.1 - 0.5 * t), angle + side, fill);
  });
  return `<path d="M${x0} ${y0}Q${x1} ${y1} ${x2} ${y2}" fill="none" stroke="${darker(fill)}" stroke-width="1.6"/>${leaves.join('')}`;
}

/** A flower of rounded petals in two rings. */
export function flower(x, y, radius, fill, petals = 7, heart = colours.ochre) {
  const ring = (r, colour, turn) => times(petals, (i) =>
    `<ellipse cx="${r * 0.58}" cy="0" rx="${r * 0.46}" ry="${r * 0.3}" fill="${colour}" stroke="${darker(fill)}" stroke-opacity=".25" transform="rotate(${(i * 360) / petals + turn})"/>`).join('');
  const seeds = times(9, (i) => `<circle cx="${(Math.cos(i * 2.4) * radius * 0.045 * Math.sqrt(i) * 1.6).toFixed(2)}" cy="${(Math.sin(i * 2.4) * radius * 0.045 * Math.sqrt(i) * 1.6).toFixed(2)}" r="${radius * 0.035}" fill="${darker(heart)}"/>`).join('');
  return `<g transform="translate(${x} ${y})">${ring(radius, fill, 0)}${ring(radius * 0.68, lighter(fill), 180 / petals)}<circle r="${radius * 0.22}" fill="${heart}"/>${seeds}</g>`;
}

export const heartPath = 'M0 9C-16 -4 -13 -17 -4.5 -17C-1.5 -17 0 -14 0 -12.5C0 -14 1.5 -17 4.5 -17C13 -17 16 -4 0 9Z';
export const heart = (x, y, size, fill, turn = 0) =>
  `<path transform="translate(${x} ${y}) rotate(${turn}) scale(${size})" d="${heartPath}" fill="${fill}"/>`;

/** Pennants along a sagging line. */
export function bunting(x0, y0, x1, y1, sag, count, fills, height = 34) {
  const x = (t) => x0 + (x1 - x0) * t;
  const y = (t) => y0 + (y1 - y0) * t + sag * 4 * t * (1 - t);
  const flags = times(count, (i) => {
    const [a, b] = [(i + 0.12) / count, (i + 0.88) / count];
    const m = (a + b) / 2;
    const fill = fills[i % fills.length];
    const dots = i % 3 ? '' : times(3, (k) => `<circle cx="${(x(m) + (k - 1) * 6).toFixed(1)}" cy="${(y(m) + 6 + (k % 2) * 7).toFixed(1)}" r="1.8" fill="#fff" opacity=".8"/>`).join('');
    return `<path d="M${x(a).toFixed(1)} ${y(a).toFixed(1)}L${x(b).toFixed(1)} ${y(b).toFixed(1)}L${x(m).toFixed(1)} ${(y(m) + height).toFixed(1)}Z" fill="${fill}"/>${dots}`;
  });
  return `${flags.join('')}<path d="M${x0} ${y0}Q${(x0 + x1) / 2} ${(y0 + y1) / 2 + sag * 2} ${x1} ${y1}" fill="none" stroke="${colours.ink}" stroke-width="1.6"/>`;
}

export const balloon = (x, y, size, fill, toX, toY) =>
  `<path d="M${x} ${y + size * 1.25}Q${(x + toX) / 2 + size * 0.4} ${(y + toY) / 2 + size} ${toX} ${toY}" fill="none" stroke="${colours.ink}" stroke-opacity=".55" stroke-width="1.2"/>` +
  `<path d="M${x - size * 0.16} ${y + size * 1.36}L${x} ${y + size * 1.15}L${x + size * 0.16} ${y + size * 1.36}Z" fill="${darker(fill)}"/>` +
  `<ellipse cx="${x}" cy="${y}" rx="${size}" ry="${size * 1.2}" fill="${fill}"/><path d="M${x - size * 0.55} ${y - size * 0.2}Q${x - size * 0.5} ${y - size * 0.75} ${x - size * 0.1} ${y - size * 0.85}" fill="none" stroke="#fff" stroke-width="${size * 0.13}" stroke-linecap="round" opacity=".6"/>`;

/** Confetti in a field, but not where `free(x, y)` is true. */
export function confetti(seed, count, width, height, fills, free) {
  const roll = dice(seed);
  return times(count, (i) => {
    const [x, y, turn] = [roll() * width, roll() * height, roll() * 180];
    const fill = fills[i % fills.length];
    if (free(x, y)) {
      return '';
    }
    return i % 3 === 2 ? `<circle cx="${x.toFixed(1)}" cy="${y.toFixed(1)}" r="2.6" fill="${fill}"/>`
      : `<rect x="-4" y="-1.6" width="8" height="3.2" rx="1" fill="${fill}" transform="translate(${x.toFixed(1)} ${y.toFixed(1)}) rotate(${turn.toFixed(0)})"/>`;
  }).join('');
}

export const warm = [colours.terracotta, colours.ochre, colours.sage, colours.blue, colours.plum];
export const sheet = (width, height, fill) => `<rect width="${width}" height="${height}" fill="${fill}"/>`;
export const script = (x, y, size, fill, text) =>
  `<text x="${x}" y="${y}" font-family="Z003" font-size="${size}" fill="${fill}" text-anchor="middle">${text}</text>`;
export const small = (x, y, text, anchor = 'start', size = 15) =>
  `<text x="${x}" y="${y}" font-family="Liberation Serif" font-style="italic" font-size="${size}" fill="${colours.ink}" text-anchor="${anchor}">${text}</text>`;
export const dotted = (x0, y, x1) =>
  `<path d="M${x0} ${y}H${x1}" stroke="${colours.ink}" stroke-opacity=".6" stroke-width="1.4" stroke-dasharray="0.1 5" stroke-linecap="round"/>`;
export const berries = (x, y, fill) => [[0, 0], [9, 5], [3, 11]].map(([dx, dy]) =>
  `<circle cx="${x + dx}" cy="${y + dy}" r="4.6" fill="${fill}"/><circle cx="${x + dx - 1.3}" cy="${y + dy - 1.5}" r="1.3" fill="#fff" opacity=".7"/>`).join('');

/** The two sizes of a card, in pixels. */
export const upright = { width: 440, height: 640 };
export const lying = { width: 640, height: 440 };
